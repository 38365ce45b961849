#include "docmgr/view/frozencolumns.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

FrozenColumnsView::FrozenColumnsView(QTableView* table) : QTableView(table), table_(table)
{
    setObjectName("frozenColumns");
    setModel(table->model());
    setSelectionModel(table->selectionModel());
    setItemDelegate(table->itemDelegate());
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionBehavior(table->selectionBehavior());
    setSelectionMode(table->selectionMode());
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setShowGrid(table->showGrid());
    setWordWrap(false);
    setFrameShape(QFrame::NoFrame);
    setGridStyle(table->gridStyle());
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(0);  // as narrow as the table's columns may be
    hide();

    connect(verticalScrollBar(), &QAbstractSlider::valueChanged, table->verticalScrollBar(),
            &QAbstractSlider::setValue);
    connect(table->verticalScrollBar(), &QAbstractSlider::valueChanged, verticalScrollBar(),
            &QAbstractSlider::setValue);
}

void FrozenColumnsView::SetFrozenCount(int count)
{
    const int columns = model() ? model()->columnCount() : 0;
    count_ = std::clamp(count, 0, columns);
    setSelectionMode(table_->selectionMode());
    for (int c = 0; c < columns; ++c)
        setColumnHidden(c, c >= count_);
    SyncWidths();
    setVisible(count_ > 0);
    UpdateGeometry();
}

void FrozenColumnsView::SyncWidths()
{
    setFont(table_->font());
    horizontalHeader()->setFixedHeight(table_->horizontalHeader()->height());
    verticalHeader()->setDefaultSectionSize(table_->verticalHeader()->defaultSectionSize());
    for (int c = 0; c < count_; ++c)
        setColumnWidth(c, table_->columnWidth(c));
}

void FrozenColumnsView::UpdateGeometry()
{
    if (count_ == 0)
        return;
    int width = 0;
    for (int c = 0; c < count_; ++c)
        width += table_->columnWidth(c);
    const int frame = table_->frameWidth();
    const int maxWidth = table_->viewport()->width();
    horizontalHeader()->setFixedHeight(table_->horizontalHeader()->height());
    setGeometry(frame + table_->verticalHeader()->width(), frame, std::min(width, maxWidth),
                table_->viewport()->height() + table_->horizontalHeader()->height());
    verticalScrollBar()->setValue(table_->verticalScrollBar()->value());
}

void FrozenColumnsView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    emit contextMenuRequested(event->globalPos());
}
