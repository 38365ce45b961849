#include <gtest/gtest.h>

#include "tests/support/testenv.h"

int main(int argc, char** argv)
{
    SetTestEnvironment();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
