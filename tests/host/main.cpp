#include <QApplication>
#include <gtest/gtest.h>

#include "tests/support/testenv.h"

#include "docmgr/tools/resmgr.h"

int main(int argc, char** argv)
{
    SetTestEnvironment();
    ::testing::InitGoogleTest(&argc, argv);
    // Qt's event machinery (child processes, file times, the host's dialogs) and the
    // module's English texts for the whole run.
    QApplication app(argc, argv);
    ResModule resources(Language::English);
    return RUN_ALL_TESTS();
}
