#include "docmgr/view/docfindfilter.h"

#include "docmgr/view/doclistmodel.h"

DocFindFilter::DocFindFilter(DocListModel* list, QObject* parent) : QSortFilterProxyModel(parent), list_(list)
{
    // Connected before the filter connects itself, so the texts are marked stale before
    // it asks for any row of the changed list.
    connect(list, &QAbstractItemModel::modelReset, this, &DocFindFilter::ListChanged);
    connect(list, &QAbstractItemModel::layoutChanged, this, &DocFindFilter::ListChanged);
    connect(list, &QAbstractItemModel::rowsRemoved, this, &DocFindFilter::ListChanged);
    connect(list, &QAbstractItemModel::rowsInserted, this, &DocFindFilter::ListChanged);
    connect(list, &QAbstractItemModel::dataChanged, this, &DocFindFilter::ListChanged);
    setSourceModel(list);
}

void DocFindFilter::SetFindText(const std::string& text)
{
    if (text == text_)
        return;
    text_ = text;
    if (!stale_)
        Match();  // the folded texts stand: only the search runs again
    // A layout change, not a reset: the rows still shown keep their selection.
    invalidate();
}

void DocFindFilter::Prepare()
{
    if (stale_)
        Match();
}

void DocFindFilter::Match() const
{
    if (stale_) {
        std::vector<uint16_t> columns(size_t(list_->columnCount()));
        for (size_t column = 0; column < columns.size(); ++column)
            columns[column] = list_->ColumnId(int(column));
        find_.Reset(std::move(columns));
        const DocInfo none;  // a row on its way out: nothing to find in it
        for (int row = 0; row < list_->rowCount(); ++row) {
            const DocInfo* info = list_->RowInfo(row);
            find_.AddRow(info ? *info : none);
        }
        stale_ = false;
    }
    holds_.assign(find_.RowCount(), 0);
    for (const size_t row : find_.Find(text_))
        holds_[row] = 1;
}

bool DocFindFilter::filterAcceptsRow(int sourceRow, const QModelIndex& /*sourceParent*/) const
{
    if (text_.empty())
        return true;
    if (stale_)
        Match();
    return sourceRow >= 0 && size_t(sourceRow) < holds_.size() && holds_[size_t(sourceRow)];
}
