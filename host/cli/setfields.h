#pragma once
// docmanager --set: writes fields of document information into files from a script.
#include <ostream>

#include "host/cli/commandline.h"

// Writes `cmd.edit` into each of `cmd.startPaths` (with `cmd.dryRun` only prints, per
// file, each set field's old and new value to `out`). A file that cannot be written is
// named on `err` with why and left as it was; the others are still written. 0 when every
// file was (or would be) written, 1 otherwise.
int RunSetFields(const CommandLine& cmd, std::ostream& out, std::ostream& err);
