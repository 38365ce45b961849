#pragma once
// Running the document manager window and acting on its result.
#include "host/cli/commandline.h"

// True when a window can be shown: DISPLAY or WAYLAND_DISPLAY is set, or QT_QPA_PLATFORM
// names a platform.
bool HasDisplay();

// Opens the window in open mode on the user's configuration; afterwards opens, lists or
// prints the chosen documents. Returns the exit status.
int RunWindow(int& argc, char** argv, const CommandLine& cmd);
