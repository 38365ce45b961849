// How long the window takes to show a folder of documents from a warm index: from the
// dialog's first run (reading the settings, collecting, building the columns) until the
// list has been painted once; and how long closing it takes, from the close until the
// dialog and its rows are gone. Runs offscreen unless QT_QPA_PLATFORM says otherwise
// (QT_QPA_PLATFORM=xcb under xvfb-run, say).
//
//   bench_window CONFIG DIR         prints "window: N rows shown in M ms, closed in K ms"
//   bench_window CONFIG DIR WORD    before closing, types WORD into the find bar letter by
//                                   letter and clears it again, each keystroke until the list
//                                   is painted: "window find: ..."
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTableView>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
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

// Each keystroke: the field's text changes, the list shows the rows found and is painted.
void TypeIntoFindBar(DocManagerImpl& impl, QTableView& list, const QString& word)
{
    QElapsedTimer opening;
    opening.start();
    impl.FindHdl();  // folds the texts of the rows once
    const double openMs = double(opening.nsecsElapsed()) / 1e6;
    double typing = 0, typingWorst = 0, clearing = 0, clearingWorst = 0;
    int typed = 0;
    QElapsedTimer timer;
    for (qsizetype n = 1; n <= word.size(); ++n) {
        timer.start();
        impl.findField->setText(word.left(n));
        list.repaint();
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        if (std::getenv("BENCH_VERBOSE"))
            std::printf("  %s: %.1f ms\n", word.left(n).toUtf8().constData(), ms);
        typing += ms, typingWorst = std::max(typingWorst, ms);
        typed = list.model()->rowCount();
    }
    for (qsizetype n = word.size(); n-- > 0;) {
        timer.start();
        impl.findField->setText(word.left(n));
        list.repaint();
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        clearing += ms, clearingWorst = std::max(clearingWorst, ms);
    }
    const double keys = double(std::max<qsizetype>(word.size(), 1));
    std::printf("window find: %d rows, typing \"%s\" %.1f ms a keystroke (worst %.1f, %d rows left), "
                "clearing %.1f (worst %.1f); the bar opened in %.0f ms\n",
                list.model()->rowCount(), word.toUtf8().constData(), typing / keys, typingWorst, typed, clearing / keys,
                clearingWorst, openMs);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3 && argc != 4) {
        std::fprintf(stderr, "usage: bench_window CONFIG DIR [WORD]\n");
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
    if (argc == 4)
        TypeIntoFindBar(DocManagerImpl::Of(*manager), *list, QString::fromUtf8(argv[3]));

    timer.restart();
    manager->done(0);
    manager.reset();
    QCoreApplication::processEvents();
    const qint64 closed = timer.elapsed();
    std::printf("window: %d rows shown in %lld ms, closed in %lld ms\n", rows, static_cast<long long>(shown),
                static_cast<long long>(closed));
    return 0;
}
