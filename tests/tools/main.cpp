#include "tests/support/testmain.h"

int main(int argc, char** argv)
{
    return TestMain(argc, argv);
}
