#pragma once
// Widget tests that need a live document manager: runs a test body inside the manager's
// modal loop, on the list its first collection built, and selects rows by file name.
// Header only: the core test programs, which link no widgets, never include it.
#include <QItemSelectionModel>
#include <QTimer>
#include <functional>
#include <set>
#include <string>

#include "docmgr/manager/docmanager.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/view/docbrowser.h"

namespace managerloop {

// Executes `manager` (settings read, list collected), runs `body` once the loop is up,
// and closes the manager afterwards with 0.
inline void RunInManager(DocManager& manager, const std::function<void()>& body)
{
    QTimer::singleShot(0, &manager, [&] {
        body();
        manager.done(0);
    });
    manager.Execute();
}

// Selects exactly the rows whose file names are in `names`; returns how many it selected.
inline int SelectFiles(DocBrowser& browser, const std::set<std::string>& names)
{
    browser.clearSelection();
    const auto& rows = browser.GetRowList().Rows();
    QItemSelection selection;
    int selected = 0;
    for (size_t row = 0; row < rows.size(); ++row) {
        if (!names.count(fsutil::FileName(rows[row]->entry)))
            continue;
        const QModelIndex index = browser.model()->index(int(row), 0);
        selection.select(index, index);
        ++selected;
    }
    browser.selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    return selected;
}

}  // namespace managerloop
