#pragma once
// Inside of DocBrowser, shared by its files: the row list, which reads the dialog's host
// for document information, reports its progress here and sees the selection through the
// selection model.
#include <utility>
#include <vector>

#include "docmgr/records/docrowlist.h"
#include "docmgr/records/docsource.h"
#include "docmgr/view/collectprogress.h"
#include "docmgr/view/docbrowser.h"

class DocCellDelegate;
class DocFindFilter;

struct DocBrowser::Impl final : CollectObserver, DocSelection {
    Impl(DocBrowser* browser, DocListHost& host);

    // CollectObserver: a long collection shows how far it has got.
    void CollectProgress(size_t dirs, size_t docs) override;
    void DirectoryRead(const std::string& dir) override { listedDirs.push_back(dir); }
    // DocSelection: the rows of the list selected in the view, ascending.
    long FirstSelected() const override;
    long NextSelected(long row) const override;

    // Row of the list shown at view row `row`, and the reverse (-1 for a row not shown).
    long ListRow(long row) const;
    long ViewRow(long row) const;
    // Selected view rows as sorted, disjoint, inclusive intervals.
    std::vector<std::pair<long, long>> SelectedIntervals() const;
    void SelectIntervals(const std::vector<std::pair<long, long>>& intervals);

    DocBrowser* browser;
    DocListHost& host;
    ImplDocConfig* settings = nullptr;
    std::string dirFileName;
    std::string collectPaths;
    std::vector<std::string> listedDirs;  // the folders the last collection read
    bool singleView = false;
    DocListModel* model = nullptr;
    DocFindFilter* shown = nullptr;  // what the view shows of the model: the found rows
    DocCellDelegate* delegate = nullptr;
    FrozenColumnsView* frozen = nullptr;
    DocRowList list;
    ::CollectProgress progress;
    // Column widths set by the program, not by the user: not stored.
    bool settingColumns = false;
    // Columns the user is resizing; stored when the mouse button is released.
    std::vector<unsigned short> pendingResize;
};
