#include "docmgr/view/doclistmodel.h"

#include <algorithm>
#include <unordered_map>

#include "docmgr/records/docfields.h"

DocListModel::DocListModel(QObject* parent) : QAbstractTableModel(parent)
{}

int DocListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(rows_.size());
}

int DocListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ids_.size());
}

QVariant DocListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const DocInfo* info = Info(rows_[size_t(index.row())]);
    const uint16_t id = ids_[size_t(index.column())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return info ? QString::fromStdString(GetFieldString(*info, id)) : QString();
    case Qt::TextAlignmentRole:
        return id == COL_SIZE ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                              : QVariant(int(Qt::AlignLeft | Qt::AlignVCenter));
    default: return {};
    }
}

const DocInfo* DocListModel::Info(RowStore::Id row) const
{
    if (row == NO_ROW || !list_)
        return nullptr;
    if (row != scratchRow_) {
        list_->Store().Fill(row, scratch_);
        scratchRow_ = row;
    }
    return &scratch_;
}

QVariant DocListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || size_t(section) >= titles_.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::DisplayRole)
        return titles_[size_t(section)];
    if (role == Qt::TextAlignmentRole)  // titles sit above their texts
        return ids_[size_t(section)] == COL_SIZE ? int(Qt::AlignRight | Qt::AlignVCenter)
                                                 : int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

void DocListModel::SetColumns(std::vector<uint16_t> ids, std::vector<QString> titles)
{
    beginResetModel();
    ids_ = std::move(ids);
    titles_ = std::move(titles);
    titles_.resize(ids_.size());
    endResetModel();
}

uint16_t DocListModel::ColumnId(int column) const
{
    return column >= 0 && size_t(column) < ids_.size() ? ids_[size_t(column)] : 0;
}

const DocInfo* DocListModel::RowInfo(int row) const
{
    return row >= 0 && size_t(row) < rows_.size() ? Info(rows_[size_t(row)]) : nullptr;
}

int DocListModel::ColumnOf(uint16_t id) const
{
    auto it = std::find(ids_.begin(), ids_.end(), id);
    return it == ids_.end() ? -1 : int(it - ids_.begin());
}

void DocListModel::HideRows()
{
    scratchRow_ = NO_ROW;  // the store is about to be emptied
    if (rows_.empty())
        return;
    beginResetModel();
    std::vector<RowStore::Id>().swap(rows_);
    endResetModel();
}

void DocListModel::ShowRows(const DocRowList& list)
{
    beginResetModel();
    list_ = &list;
    scratchRow_ = NO_ROW;
    rows_.resize(size_t(list.GetRowCount()));
    for (long r = 0; r < list.GetRowCount(); ++r)
        rows_[size_t(r)] = list.StoreId(r);
    endResetModel();
}

void DocListModel::RowsReordered(const DocRowList& list)
{
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    if (!before.isEmpty()) {
        std::unordered_map<RowStore::Id, int> newRow;
        newRow.reserve(size_t(list.GetRowCount()));
        for (long r = 0; r < list.GetRowCount(); ++r)
            newRow.emplace(list.StoreId(r), int(r));
        after.reserve(before.size());
        for (const QModelIndex& index : before) {
            auto it = newRow.find(rows_[size_t(index.row())]);
            after.append(it == newRow.end() ? QModelIndex() : createIndex(it->second, index.column()));
        }
    }
    list_ = &list;
    rows_.resize(size_t(list.GetRowCount()));
    for (long r = 0; r < list.GetRowCount(); ++r)
        rows_[size_t(r)] = list.StoreId(r);
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void DocListModel::RowsRemoved(const std::vector<long>& rows, const DocRowList& list)
{
    // The list has dropped these rows already; forget them before anyone can look.
    for (long row : rows)
        if (row >= 0 && size_t(row) < rows_.size())
            rows_[size_t(row)] = NO_ROW;
    for (long row : rows) {
        if (row < 0 || size_t(row) >= rows_.size())
            continue;
        beginRemoveRows({}, int(row), int(row));
        rows_.erase(rows_.begin() + row);
        endRemoveRows();
    }
    if (long(rows_.size()) != list.GetRowCount())
        ShowRows(list);  // out of step: show the list as it is
}

void DocListModel::RowReplaced(long row, const DocRowList& list)
{
    if (row < 0 || size_t(row) >= rows_.size() || row >= list.GetRowCount())
        return;
    rows_[size_t(row)] = list.StoreId(row);
    if (!ids_.empty())
        emit dataChanged(index(int(row), 0), index(int(row), columnCount() - 1));
}
