// A host of the document manager that knows no file format: a document's title is its
// file name without the extension and its size comes from the file system.
//
//   example-host [--auto-close MS] [START_PATH...]
//
// It opens the manager twice, once on the module's own settings file and once on a
// configuration the host owns, and prints the documents chosen with Open or Print.
// --auto-close answers the open modal window with Escape every MS milliseconds, for runs
// without a user.
#include <docmgr/manager/docmanager.h>
#include <docmgr/tools/config.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

class FileNameHost : public DocManager {
public:
    using DocManager::DocManager;

    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) override
    {
        std::error_code error;
        const std::uintmax_t size = std::filesystem::file_size(file, error);
        if (error)
            return nullptr;  // gone, or not a regular file: not a document
        auto info = std::make_unique<DocInfo>();
        info->entry = file;
        info->size = uint32_t(std::min<std::uintmax_t>(size, NO_DOC_INFO - 1));
        info->title = std::filesystem::path(file).stem().string();
        return info;
    }

    // There is nothing to edit: the information is the file name.
    bool ChangeDocInfo(QWidget*, const std::string&) override { return false; }
};

void Run(FileNameHost& manager, int autoCloseMs)
{
    QTimer closer;
    if (autoCloseMs >= 0) {
        // The first run's notice about the new group comes up before the manager itself.
        QObject::connect(&closer, &QTimer::timeout, &closer, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
        });
        closer.start(autoCloseMs);
    }
    const short result = manager.Execute();  // 0 closed, 1 open, RET_PRINTDOCS print
    if (result == 0)
        return;
    std::cout << (result == RET_PRINTDOCS ? "print:" : "open:") << (manager.IsReadOnly() ? " (read-only)\n" : "\n");
    for (const std::string* doc = manager.GetFirstDoc(); doc; doc = manager.GetNextDoc())
        std::cout << *doc << '\n';
}

}  // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    int autoCloseMs = -1;
    std::string startPaths;  // separated by ";"
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--auto-close" && i + 1 < argc) {
            autoCloseMs = std::max(0, std::atoi(argv[++i]));
        } else {
            std::error_code error;
            const std::string path = std::filesystem::absolute(arg, error).string();
            startPaths += (startPaths.empty() ? "" : ";") + path;
        }
    }

    DocManagerDll module;  // the module's texts, for as long as a manager lives
    {
        // The module keeps its settings itself, in dmgdump.cfg in the current folder.
        FileNameHost manager(nullptr, "example-host", startPaths, true);
        Run(manager, autoCloseMs);
    }
    {
        // The host hands over a configuration of its own; the module keeps its groups there.
        Config config("example-host.cfg");
        FileNameHost manager(nullptr, &config, startPaths, true);
        Run(manager, autoCloseMs);
    }
    return 0;
}
