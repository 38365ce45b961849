#pragma once
// What every test program runs under, whether ctest starts it for one case, for the
// listing of its cases at build time, or by hand: no display, a UTF-8 C locale, and the
// folder of the built programs.
#include <cstdlib>

inline void SetTestEnvironment()
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("LANG", "C.UTF-8", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("DOCMGR_BIN_DIR", DOCMGR_TEST_BIN_DIR, 0);
}
