#pragma once
// The document list: a table view over the row list, one column per configured id.
#include <QTableView>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/docrowlist.h"

class DocListHost;
class DocCommandMenu;
class ImplDocConfig;
class DocListModel;
class FrozenColumnsView;
class CollectProgress;

class DocBrowser : public QTableView {
    Q_OBJECT
public:
    DocBrowser(QWidget* parent, DocListHost& host);
    ~DocBrowser() override;

    // Ties the list to the settings in force and builds the columns.
    void Initialize(ImplDocConfig* settings);
    ImplDocConfig* GetSettings() const;
    // Name of the per-directory index file; the row list's default when never set.
    void SetDirFileName(const std::string& name);
    // The ";"-separated paths the next collection lists.
    void SetCollectPaths(const std::string& paths);
    // Rebuilds all columns from the working group (one name column in single view);
    // the selected rows stay selected.
    void InsertColumns();

    // Drops the rows of the deleted file `path`.
    void RowRemoved(const std::string& path);
    // Reads the collect paths afresh through the row list (DocRowList::CollectFiles, which
    // reads each directory with ReadWriteDocInfos) and shows the result; reports the count
    // line.
    void CollectFiles(bool onlyIfNeeded);
    void SortFiles(bool repaint);
    // The folders the last collection read, absolute, in the order read.
    const std::vector<std::string>& ListedDirs() const;
    // Paths of the selected rows in ascending row order; null after the last.
    const std::string* GetFirstDoc();
    const std::string* GetNextDoc();

    std::string GetFieldString(const DocInfo& info, unsigned short columnId) const;
    std::string GetColumnText(long row, unsigned short columnId) const;
    // Rows of the list, found or not; GetShownRowCount and ShownRows: the rows the view
    // shows after the find, as positions in the list, in list order.
    long GetRowCount() const;
    const DocRowList& GetRowList() const;
    long GetShownRowCount() const;
    std::vector<long> ShownRows() const;
    // Shows only the rows holding `text` in a shown column, ignoring case; empty: all.
    void SetFindText(const std::string& text);
    const std::string& GetFindText() const;
    // Readies the find for the rows as they are (the find bar is open).
    void PrepareFind();
    // Columns in display order.
    unsigned short ColCount() const;
    unsigned short GetColumnId(unsigned short position) const;
    std::string GetColumnTitle(unsigned short columnId) const;
    // Width of a column with the stored width 0xFFFF: by the title or by "X" widths.
    int DefaultColumnWidth(unsigned short columnId) const;

    // Stores the width of column `columnId` in the working and the current group and
    // writes it to the configuration at once.
    void ColumnResized(unsigned short columnId);
    // Fits the column to its widest text, at most half the data area (header double click).
    void FitColumn(unsigned short columnId);
    // Lets the host edit the first selected document's information and shows it anew.
    void EditDocInfo();
    // Asks for the list to be printed (printListRequested).
    void PrintList();
    // Single view: one name column and single selection; otherwise all columns, extended.
    void SetSingleView(bool single);
    bool IsSingleView() const;

    // Selection helpers for the manager's commands.
    long GetSelectedRowCount() const;
    // Row of the list (not of the view, which may show fewer) of the first selected row.
    long GetFirstSelectedRow() const;
    void DeselectFirstSelected();
    void ClearSelection();
    // Selects exactly the rows of the files `paths` (absolute) that the list shows.
    void SelectPaths(const std::vector<std::string>& paths);

    // The context menu for the current selection, enabled by the access rights alone;
    // null when no row is selected.
    std::unique_ptr<DocCommandMenu> CreateContextMenu();
    // Opens that menu at `globalPos` and runs the chosen command; false without a selection.
    bool ShowContextMenu(const QPoint& globalPos);

    DocListModel* GetModel() const;
    FrozenColumnsView* GetFrozenView() const;
    CollectProgress& GetCollectProgress() const;

signals:
    // The row count line ("<count> documents in <paths>") after a collection.
    void countLineChanged(const QString& line);
    // The selection or the rows changed: the controls and the summary pane follow.
    void selectionStateChanged();
    // A row was double clicked: the dialog takes the selection as if Open was pressed.
    void rowActivated();
    void printListRequested();
    // The view shows other rows (a find, a collection, a removal).
    void shownRowsChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void updateGeometries() override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void RowDoubleClicked(const QModelIndex& index);
    void HeaderDoubleClicked(int column);
    void SectionResized(int column, int oldWidth, int newWidth);

    struct Impl;
    std::unique_ptr<Impl> d;
    friend struct Impl;
};
