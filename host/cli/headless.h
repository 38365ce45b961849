#pragma once
// The modes that need no display: --list and --export-config.
#include <ostream>
#include <string>

#include "host/cli/commandline.h"

// Runs the listing or the export of `cmd`: its messages go to `err`, then, when it
// succeeds, the listing or export to `out` (a listing row by row, as it is written), so
// that nothing reaches `out` when the run fails. Needs a QCoreApplication and no window:
// the module's texts come from a ResModule made here. Returns 0 on success, 1 on failure,
// 2 for bad arguments.
int RunHeadless(const CommandLine& cmd, std::ostream& out, std::ostream& err);
