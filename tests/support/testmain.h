#pragma once
// The main of every test program, included by exactly one file of each. Whether ctest
// starts it for one case, for the listing of its cases at build time, or it runs by hand,
// it runs alike: no display, a UTF-8 C locale, the folder of the built programs. `App` is
// QApplication where widgets, child processes or file times need Qt's event machinery;
// with `texts` the module's English texts last the whole run.
#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

#include "docmgr/tools/resmgr.h"

struct NoApplication {
    NoApplication(int&, char**) {}
};

template <class App = NoApplication>
int TestMain(int argc, char** argv, bool texts = false)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    setenv("LANG", "C.UTF-8", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("DOCMGR_BIN_DIR", DOCMGR_TEST_BIN_DIR, 0);
    App app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    std::optional<ResModule> resources;
    if (texts)
        resources.emplace(Language::English);
    return RUN_ALL_TESTS();
}
