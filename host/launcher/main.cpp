// docmanager: the document manager window, or with --list / --export-config the same
// listing and configuration for scripts, and with --set an edit of documents' information,
// without a display. The window is a program of
// its own (docmanager-window), so that a listing loads only Qt Core and the readers.
#include <QCoreApplication>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <unistd.h>

#include "host/cli/commandline.h"
#include "host/cli/headless.h"
#include "host/cli/setfields.h"
#include "host/launcher/installedfiles.h"

namespace {

int RunHeadlessMode(int& argc, char** argv, const CommandLine& cmd)
{
    // Without TZ the C library looks at /etc/localtime again for every local-time
    // conversion, and reading documents converts several stamps each. A run of a few
    // seconds can take the zone once.
    if (!std::getenv("TZ"))
        setenv("TZ", ":/etc/localtime", 0);
    QCoreApplication app(argc, argv);
    std::ios::sync_with_stdio(false);
    const int status = RunHeadless(cmd, std::cout, std::cerr);
    std::cout.flush();
    if (!std::cout) {
        std::cerr << "docmanager: the output could not be written\n";
        return 1;
    }
    return status;
}

}  // namespace

int main(int argc, char** argv)
{
    CommandLine cmd;
    if (!ParseProgramArguments(argc, argv, cmd))
        return 2;
    try {
        switch (cmd.mode) {
        case RunMode::Help: std::cout << UsageText(); return 0;
        case RunMode::List:
        case RunMode::ExportConfig: return RunHeadlessMode(argc, argv, cmd);
        case RunMode::SetFields: {
            QCoreApplication app(argc, argv);
            return RunSetFields(cmd, std::cout, std::cerr);
        }
        case RunMode::Window: break;
        }
        const std::string window = WindowProgram();
        execv(window.c_str(), argv);
        std::cerr << "docmanager: the window program " << window << " could not be started: " << std::strerror(errno)
                  << '\n';
        return 1;
    } catch (const std::exception& e) {
        std::cerr << "docmanager: " << e.what() << '\n';
        return 1;
    }
}
