#pragma once
// The table model of the document list: one row per row of the row list, one column
// per configured column id, the cell texts of GetFieldString.
//
// The model keeps its own list of the rows it has announced (their places in the row
// store), so that the view never sees a row the list has already dropped or not yet
// finished: while a collection runs the model shows no rows at all.
#include <QAbstractTableModel>
#include <cstdint>
#include <vector>

#include "docmgr/records/docrowlist.h"

class DocListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit DocListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // Columns in display order with their titles (all rows keep their selection state
    // only as far as the caller restores it: this resets the model).
    void SetColumns(std::vector<uint16_t> ids, std::vector<QString> titles);
    uint16_t ColumnId(int column) const;
    // The document of `row`, or null; valid until the next call (the list may make it
    // for the call).
    const DocInfo* RowInfo(int row) const;
    int ColumnOf(uint16_t id) const;

    // No rows until ShowRows: the list is about to be rebuilt.
    void HideRows();
    // Shows every row of `list` afresh.
    void ShowRows(const DocRowList& list);
    // The list was re-ordered; rows keep their selection through persistent indexes.
    void RowsReordered(const DocRowList& list);
    // The list dropped `rows` (positions, highest first).
    void RowsRemoved(const std::vector<long>& rows, const DocRowList& list);
    // The DocInfo of `row` was replaced.
    void RowReplaced(long row, const DocRowList& list);

private:
    static constexpr RowStore::Id NO_ROW = RowStore::Id(-1);
    // The row's information, made once for all the cells of that row that are painted
    // one after the other.
    const DocInfo* Info(RowStore::Id row) const;

    const DocRowList* list_ = nullptr;
    std::vector<RowStore::Id> rows_;
    mutable DocInfo scratch_;
    mutable RowStore::Id scratchRow_ = NO_ROW;
    std::vector<uint16_t> ids_;
    std::vector<QString> titles_;
};
