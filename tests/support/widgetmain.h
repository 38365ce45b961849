#pragma once
// The main of every widget test program: widgets need an application object (offscreen
// under ctest). Included by exactly one file of each program.
#include <QApplication>
#include <gtest/gtest.h>

#include "tests/support/testenv.h"

int main(int argc, char** argv)
{
    SetTestEnvironment();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
