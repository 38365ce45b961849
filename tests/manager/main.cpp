// Test program of the manager dialog: widgets need an application object (offscreen under ctest).
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
