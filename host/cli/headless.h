#pragma once
// The modes that need no display: --list and --export-config.
#include <string>

#include "host/cli/commandline.h"

struct HeadlessResult {
    int status = 0;     // 0 success, 1 failure, 2 bad arguments
    std::string out;    // for standard output; empty unless status is 0
    std::string err;    // messages for standard error
};

// Runs the listing or the export of `cmd`. Needs a QCoreApplication and no window: the
// module's texts come from a ResModule made here. Output is gathered, not printed, so
// that nothing reaches standard output when the run fails.
HeadlessResult RunHeadless(const CommandLine& cmd);
