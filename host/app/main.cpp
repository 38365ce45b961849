// docmanager-window: the document manager window. `docmanager` starts it when no headless
// mode is asked for, so that a listing never loads the window's libraries.
#include <exception>
#include <iostream>

#include "host/app/windowmode.h"
#include "host/cli/commandline.h"

int main(int argc, char** argv)
{
    CommandLine cmd;
    if (!ParseProgramArguments(argc, argv, cmd))
        return 2;
    try {
        return RunWindow(argc, argv, cmd);
    } catch (const std::exception& e) {
        std::cerr << "docmanager: " << e.what() << '\n';
        return 1;
    }
}
