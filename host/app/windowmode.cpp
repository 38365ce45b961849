#include "host/app/windowmode.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdlib>
#include <iostream>

#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "host/app/documentopener.h"
#include "host/app/hosttexts.h"
#include "host/app/hostmanager.h"
#include "host/cli/collectpaths.h"
#include "host/cli/printcommand.h"
#include "host/cli/readonlycopies.h"
#include "host/cli/userconfig.h"

namespace {

bool EnvSet(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value;
}

// Errors go to standard error and, as the user is looking at the screen, into a box.
void Report(const std::string& message)
{
    std::cerr << "docmanager: " << message << (message.ends_with('\n') ? "" : "\n");
    QMessageBox box(QMessageBox::Warning, QStringLiteral("docmanager"), QString::fromStdString(message).trimmed(),
                    QMessageBox::Ok);
    box.setObjectName(QStringLiteral("hostMessageBox"));
    box.exec();
}

std::vector<std::string> ChosenDocuments(DocManager& manager)
{
    std::vector<std::string> docs;
    for (const std::string* doc = manager.GetFirstDoc(); doc; doc = manager.GetNextDoc())
        docs.push_back(*doc);
    return docs;
}

// Result 1: open the documents (read-only copies when asked), or print their paths.
int OpenChosen(const std::vector<std::string>& chosen, bool readOnly, bool printPaths)
{
    std::string error;
    std::vector<std::string> docs = chosen;
    if (readOnly)
        docs = MakeReadOnlyCopies(chosen, error);
    int status = error.empty() ? 0 : 1;
    if (printPaths) {
        for (const std::string& doc : docs)
            std::cout << doc << '\n';
        std::cout.flush();
    } else if (OpenDocuments(docs, error) != 0) {
        status = 1;
    }
    if (!error.empty())
        Report(error);
    return status;
}

int RunManager(const CommandLine& cmd, Config& config)
{
    HostManager manager(nullptr, &config, JoinStartPaths(cmd.startPaths), true);
    if (!cmd.indexName.empty())
        manager.SetDirFileName(cmd.indexName);
    if (!cmd.noCache)
        manager.UseCache();
    const short result = manager.Execute();
    if (result == 1)
        return OpenChosen(ChosenDocuments(manager), manager.IsReadOnly(), cmd.printPaths);
    if (result == RET_PRINTDOCS) {
        std::string error;
        const int status = PrintDocuments(ChosenDocuments(manager), error);
        if (status != 0)
            Report(error);
        return status;
    }
    return 0;
}

}  // namespace

bool HasDisplay()
{
    return EnvSet("DISPLAY") || EnvSet("WAYLAND_DISPLAY") || EnvSet("QT_QPA_PLATFORM");
}

int RunWindow(int& argc, char** argv, const CommandLine& cmd)
{
    if (!HasDisplay()) {
        std::cerr << "docmanager: no display to open the window on (neither DISPLAY nor "
                     "WAYLAND_DISPLAY is set).\n"
                     "To list documents without a window, run: docmanager --list [START_PATH...]\n";
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("docmanager"));
    const HostTexts texts;

    std::string error;
    std::unique_ptr<Config> config = OpenUserConfig(cmd.configPath, error);
    if (!config) {
        Report(error);
        return 1;
    }
    // The module's resources live from before the manager is built until after it is gone.
    DocManagerDll module;
    // The command line is read with the same texts on this side of the module's boundary
    // (the placeholder start path, for one).
    const ResModule hostTexts;
    return RunManager(cmd, *config);
}
