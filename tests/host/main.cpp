#include <QApplication>

#include "tests/support/testmain.h"

// The host's dialogs and child processes, with the module's texts.
int main(int argc, char** argv)
{
    return TestMain<QApplication>(argc, argv, true);
}
