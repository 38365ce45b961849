// What the document list does on the user's mouse and menu input.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/view/docbrowser.h"
#include "docmgr/view/docbrowserimpl.h"
#include "docmgr/view/doccelldelegate.h"
#include "docmgr/view/doclisthost.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/doclistmodel.h"
#include "docmgr/view/frozencolumns.h"

void DocBrowser::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    emit selectionStateChanged();  // the controls and the summary pane follow
}

void DocBrowser::keyPressEvent(QKeyEvent* event)
{
    // With nothing selected the first Down selects the current row (the first one, which
    // the focus made current) instead of moving past it.
    const QModelIndex current = currentIndex();
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier && current.isValid() &&
        !selectionModel()->hasSelection()) {
        selectRow(current.row());
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

void DocBrowser::RowDoubleClicked(const QModelIndex& index)
{
    if (!index.isValid() || index.row() >= GetRowCount())
        return;
    selectRow(index.row());
    emit rowActivated();
}

void DocBrowser::HeaderDoubleClicked(int column)
{
    if (column < 0 || d->singleView)
        return;  // the single column always fills the list
    FitColumn(GetColumnId(static_cast<unsigned short>(column)));
}

void DocBrowser::FitColumn(unsigned short columnId)
{
    const int column = d->model->ColumnOf(columnId);
    if (column < 0)
        return;
    const QFontMetrics metrics(font());
    const int limit = viewport()->width() / 2 - 1;
    int width = 6;
    for (const auto& row : d->list.Rows()) {
        // The text with the cell's margins on both sides.
        const int text = metrics.horizontalAdvance(QString::fromStdString(GetFieldString(*row, columnId))) +
                         2 * DocCellDelegate::TEXT_MARGIN;
        if (text > limit) {
            width = limit;
            break;
        }
        width = std::max(width, text);
    }
    d->settingColumns = true;
    setColumnWidth(column, width + 2);
    d->frozen->SyncWidths();
    d->settingColumns = false;
    d->frozen->UpdateGeometry();
    ColumnResized(columnId);
}

void DocBrowser::SectionResized(int column, int /*oldWidth*/, int newWidth)
{
    if (d->settingColumns)
        return;
    // Keep the table and its frozen overlay in step whichever header the user drags.
    d->settingColumns = true;
    if (columnWidth(column) != newWidth)
        setColumnWidth(column, newWidth);
    if (column < d->frozen->FrozenCount() && d->frozen->columnWidth(column) != newWidth)
        d->frozen->setColumnWidth(column, newWidth);
    d->settingColumns = false;
    d->frozen->UpdateGeometry();
    if (d->singleView)
        return;
    const unsigned short id = GetColumnId(static_cast<unsigned short>(column));
    if (std::find(d->pendingResize.begin(), d->pendingResize.end(), id) == d->pendingResize.end())
        d->pendingResize.push_back(id);
}

bool DocBrowser::eventFilter(QObject* watched, QEvent* event)
{
    // A drag on a header edge resizes continuously; the width is stored once, at its end.
    if (event->type() == QEvent::MouseButtonRelease && !d->pendingResize.empty()) {
        const auto ids = std::exchange(d->pendingResize, {});
        for (unsigned short id : ids)
            ColumnResized(id);
    }
    return QTableView::eventFilter(watched, event);
}

void DocBrowser::ColumnResized(unsigned short columnId)
{
    ImplDocConfig* settings = d->settings;
    const int column = d->model->ColumnOf(columnId);
    if (!settings || column < 0)
        return;
    DocGroupConfig& working = settings->WorkingGroup();
    const auto slot = std::find(working.columnId.begin(), working.columnId.end(), columnId);
    if (slot == working.columnId.end())
        return;
    const size_t p = size_t(slot - working.columnId.begin());
    const auto width = static_cast<uint16_t>(std::clamp(columnWidth(column), 0, 0xFFFE));
    working.columnWidth[p] = width;
    settings->Group(settings->CurrentPosition()).columnWidth[p] = width;
    settings->SaveGroupColumnWidth(settings->CurrentPosition());
}

void DocBrowser::updateGeometries()
{
    QTableView::updateGeometries();
    if (d && d->frozen)
        d->frozen->UpdateGeometry();
}

void DocBrowser::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const int frozenCount = d->frozen->FrozenCount();
    const int scrolled = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (!index.isValid() || frozenCount == 0)
        return;
    if (index.column() < frozenCount) {
        horizontalScrollBar()->setValue(scrolled);  // frozen columns never scroll
        return;
    }
    // Bring a cell hidden under the frozen columns out from under them.
    const int frozenWidth = d->frozen->width();
    const QRect cell = visualRect(index);
    if (cell.left() < frozenWidth)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - (frozenWidth - cell.left()));
}

std::unique_ptr<DocCommandMenu> DocBrowser::CreateContextMenu()
{
    if (GetSelectedRowCount() == 0)
        return nullptr;
    auto menu = std::make_unique<DocCommandMenu>(this);
    const ImplDocConfig* settings = d->settings;
    const uint16_t access = settings ? settings->access : 0;
    // The rights alone: neither the open mode nor the number of rows counts here.
    menu->Item(CMD_DELETE)->setEnabled(access & ACCESS_FILEDELETE);
    menu->Item(CMD_COPY)->setEnabled(access & ACCESS_FILECOPY);
    menu->Item(CMD_PRINTDOCS)->setEnabled(access & ACCESS_FILEPRINT);
    menu->Item(CMD_RENAME)->setEnabled(access & ACCESS_FILERENAME);
    return menu;
}

void DocBrowser::contextMenuEvent(QContextMenuEvent* event)
{
    if (!ShowContextMenu(event->globalPos()))
        event->ignore();
}

bool DocBrowser::ShowContextMenu(const QPoint& globalPos)
{
    auto menu = CreateContextMenu();
    if (!menu)
        return false;
    if (QAction* item = menu->exec(globalPos))
        d->host.Command(DocCommandMenu::ItemId(item));
    return true;
}

void DocBrowser::EditDocInfo()
{
    const std::string* first = GetFirstDoc();
    if (!first)
        return;
    const std::string doc = *first;
    if (!d->host.ChangeDocInfo(doc))
        return;
    const long row = d->FirstSelected();
    std::unique_ptr<DocInfo> info = d->host.CreateDocInfo(doc);
    if (!info)
        info = std::make_unique<DocInfo>();  // the host broke its word; show the file bare
    info->entry = fsutil::Absolute(doc);
    info->size = static_cast<uint32_t>(fsutil::FileSize(doc));
    d->list.ReplaceRow(row, std::move(info));
    d->model->RowReplaced(row, d->list);
}

void DocBrowser::PrintList()
{
    emit printListRequested();
}
