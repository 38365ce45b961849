#pragma once
// Frozen columns of a table view: a second view laid over the left part of the table
// that shares its model and selection, shows only the first n columns and scrolls
// with it vertically but never horizontally.
#include <QTableView>

class FrozenColumnsView : public QTableView {
    Q_OBJECT
public:
    // Lies over `table`; hidden until SetFrozenCount gives it columns.
    explicit FrozenColumnsView(QTableView* table);

    // Freezes the first `count` columns (0: none; the overlay hides).
    void SetFrozenCount(int count);
    int FrozenCount() const { return count_; }
    // Follows the table's geometry and column widths.
    void UpdateGeometry();
    // Copies the table's widths of the frozen columns.
    void SyncWidths();

signals:
    // A right click (or the menu key) over the frozen columns: the table's menu belongs there too.
    void contextMenuRequested(const QPoint& globalPos);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QTableView* table_;
    int count_ = 0;
};
