#include "tests/support/testmain.h"

// The column titles and the subdirectory marker, as the module object provides them to a host.
int main(int argc, char** argv)
{
    return TestMain(argc, argv, true);
}
