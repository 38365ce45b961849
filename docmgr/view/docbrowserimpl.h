#pragma once
// Inside of DocBrowser, shared by its files: the row list with its source of document
// information (the dialog's host) and its view of the selection (the selection model).
#include <utility>
#include <vector>

#include "docmgr/records/docrowlist.h"
#include "docmgr/records/docsource.h"
#include "docmgr/view/collectprogress.h"
#include "docmgr/view/docbrowser.h"

class DocCellDelegate;

struct DocBrowser::Impl final : DocSource, DocSelection {
    Impl(DocBrowser* browser, DocListHost& host);

    // DocSource: the dialog's host supplies the information.
    std::unique_ptr<DocInfo> CreateDocInfo(const std::string& path) override;
    void ReadAhead(const std::vector<std::string>& paths) override;
    void CollectProgress(size_t dirs, size_t docs) override;
    // DocSelection: the view's selected rows, ascending.
    long FirstSelected() const override;
    long NextSelected(long row) const override;

    // Selected rows as sorted, disjoint, inclusive intervals.
    std::vector<std::pair<long, long>> SelectedIntervals() const;
    void SelectIntervals(const std::vector<std::pair<long, long>>& intervals);

    DocBrowser* browser;
    DocListHost& host;
    ImplDocConfig* settings = nullptr;
    std::string dirFileName;
    std::string collectPaths;
    bool singleView = false;
    DocListModel* model = nullptr;
    DocCellDelegate* delegate = nullptr;
    FrozenColumnsView* frozen = nullptr;
    DocRowList list;
    ::CollectProgress progress;
    // Column widths set by the program, not by the user: not stored.
    bool settingColumns = false;
    // Columns the user is resizing; stored when the mouse button is released.
    std::vector<unsigned short> pendingResize;
};
