// docmanager-window: the document manager window. `docmanager` starts it when no headless
// mode is asked for, so that a listing never loads the window's libraries.
#include <exception>
#include <iostream>

#include "host/app/windowmode.h"
#include "host/cli/commandline.h"

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    CommandLine cmd;
    std::string error;
    if (!ParseCommandLine(args, cmd, error)) {
        std::cerr << "docmanager: " << error << "\n\n" << UsageText();
        return 2;
    }
    try {
        return RunWindow(argc, argv, cmd);
    } catch (const std::exception& e) {
        std::cerr << "docmanager: " << e.what() << '\n';
        return 1;
    }
}
