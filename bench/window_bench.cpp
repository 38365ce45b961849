// How long the window takes to show a folder of documents from a warm index: from the
// dialog's first run (reading the settings, collecting, building the columns) until the
// list has been painted once; and how long closing it takes, from the close until the
// dialog and its rows are gone. Runs offscreen unless QT_QPA_PLATFORM says otherwise
// (QT_QPA_PLATFORM=xcb under xvfb-run, say).
//
//   bench_window CONFIG DIR     prints "window: N rows shown in M ms, closed in K ms"
#include <QApplication>
#include <QElapsedTimer>
#include <QTableView>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/tools/resmgr.h"

namespace {

// Reads nothing: with a warm index the list never asks.
class IndexOnlyHost : public DocManager {
public:
    using DocManager::DocManager;
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string&) override { return nullptr; }
    bool ChangeDocInfo(QWidget*, const std::string&) override { return false; }
};

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_window CONFIG DIR\n");
        return 2;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    DocManagerDll module;
    Config config(argv[1]);
    auto manager = std::make_unique<IndexOnlyHost>(nullptr, &config, argv[2], true);
    QElapsedTimer timer;
    timer.start();
    manager->show();
    DocManagerImpl::Of(*manager).Init();  // the first Execute's work, without its loop
    auto* list = manager->findChild<QTableView*>(QStringLiteral("browser"));
    list->repaint();
    const qint64 shown = timer.elapsed();
    const int rows = list->model()->rowCount();

    timer.restart();
    manager->done(0);
    manager.reset();
    QCoreApplication::processEvents();
    const qint64 closed = timer.elapsed();
    std::printf("window: %d rows shown in %lld ms, closed in %lld ms\n", rows, static_cast<long long>(shown),
                static_cast<long long>(closed));
    return 0;
}
