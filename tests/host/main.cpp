#include <QCoreApplication>
#include <gtest/gtest.h>

#include "docmgr/tools/resmgr.h"

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // Qt's event machinery (child processes, file times) and the module's English texts
    // for the whole run.
    QCoreApplication app(argc, argv);
    ResModule resources(Language::English);
    return RUN_ALL_TESTS();
}
