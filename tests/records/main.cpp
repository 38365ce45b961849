#include <gtest/gtest.h>

#include "tests/support/testenv.h"

#include "docmgr/tools/resmgr.h"

int main(int argc, char** argv)
{
    SetTestEnvironment();
    ::testing::InitGoogleTest(&argc, argv);
    // The module's texts (column titles, the subdirectory marker) for the whole run,
    // as the module object provides them to a host.
    ResModule resources(Language::English);
    return RUN_ALL_TESTS();
}
