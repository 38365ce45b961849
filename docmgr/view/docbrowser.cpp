#include "docmgr/view/docbrowser.h"

#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <set>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docfields.h"
#include "docmgr/tools/resmgr.h"
#include "docmgr/view/docbrowserimpl.h"
#include "docmgr/view/doccelldelegate.h"
#include "docmgr/view/docfindfilter.h"
#include "docmgr/view/doclisthost.h"
#include "docmgr/view/doclistmodel.h"
#include "docmgr/view/frozencolumns.h"
#include "docmgr/ui/waitcursor.h"
#include "resources/resids.h"

namespace {
constexpr uint16_t DEFAULT_WIDTH = 0xFFFF;
}  // namespace

DocBrowser::Impl::Impl(DocBrowser* b, DocListHost& h) : browser(b), host(h), list(h, this), progress(b->parentWidget())
{}

void DocBrowser::Impl::CollectProgress(size_t dirs, size_t docs)
{
    progress.Update(dirs, docs);
}

std::vector<std::pair<long, long>> DocBrowser::Impl::SelectedIntervals() const
{
    std::vector<std::pair<long, long>> ranges;
    const QItemSelectionModel* selection = browser->selectionModel();
    if (!selection)
        return ranges;
    for (const QItemSelectionRange& range : selection->selection())
        if (range.isValid())
            ranges.emplace_back(range.top(), range.bottom());
    std::sort(ranges.begin(), ranges.end());
    std::vector<std::pair<long, long>> merged;
    for (const auto& range : ranges) {
        if (!merged.empty() && range.first <= merged.back().second + 1)
            merged.back().second = std::max(merged.back().second, range.second);
        else
            merged.push_back(range);
    }
    return merged;
}

long DocBrowser::Impl::ListRow(long row) const
{
    return row < 0 ? -1 : shown->mapToSource(shown->index(int(row), 0)).row();
}

long DocBrowser::Impl::ViewRow(long row) const
{
    return row < 0 ? -1 : shown->mapFromSource(model->index(int(row), 0)).row();
}

void DocBrowser::Impl::SelectIntervals(const std::vector<std::pair<long, long>>& intervals)
{
    const int columns = shown->columnCount();
    if (columns == 0 || intervals.empty())
        return;
    QItemSelection selection;
    for (const auto& [top, bottom] : intervals)
        selection.select(shown->index(int(top), 0), shown->index(int(bottom), columns - 1));
    browser->selectionModel()->select(selection, QItemSelectionModel::Select);
}

long DocBrowser::Impl::FirstSelected() const
{
    return NextSelected(-1);
}

long DocBrowser::Impl::NextSelected(long row) const
{
    // The view shows the list's rows in their order, only fewer of them.
    const long after = row < 0 ? -1 : ViewRow(row);
    if (row >= 0 && after < 0)
        return -1;  // the walk stood on a row no longer shown
    long next = -1;
    const QItemSelectionModel* selection = browser->selectionModel();
    if (!selection)
        return next;
    for (const QItemSelectionRange& range : selection->selection()) {
        if (!range.isValid() || range.bottom() <= after)
            continue;
        const long candidate = std::max<long>(range.top(), after + 1);
        if (next < 0 || candidate < next)
            next = candidate;
    }
    return ListRow(next);
}

DocBrowser::DocBrowser(QWidget* parent, DocListHost& host) : QTableView(parent), d(std::make_unique<Impl>(this, host))
{
    setObjectName("browser");
    d->model = new DocListModel(this);
    d->shown = new DocFindFilter(d->model, this);
    d->delegate = new DocCellDelegate(this);
    setModel(d->shown);
    setItemDelegate(d->delegate);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setShowGrid(true);  // cells are packed tightly; the lines keep neighbours apart
    setAlternatingRowColors(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setMinimumSectionSize(0);
    d->frozen = new FrozenColumnsView(this);

    for (QTableView* view : {static_cast<QTableView*>(this), static_cast<QTableView*>(d->frozen)}) {
        // A double click on a column's edge fits the column like one on its title.
        disconnect(view->horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, view, nullptr);
        connect(view, &QAbstractItemView::doubleClicked, this, &DocBrowser::RowDoubleClicked);
        connect(view->horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, &DocBrowser::HeaderDoubleClicked);
        connect(view->horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
                &DocBrowser::HeaderDoubleClicked);
        connect(view->horizontalHeader(), &QHeaderView::sectionResized, this, &DocBrowser::SectionResized);
        view->horizontalHeader()->viewport()->installEventFilter(this);
    }
    connect(d->shown, &QAbstractItemModel::modelReset, this, &DocBrowser::shownRowsChanged);
    connect(d->shown, &QAbstractItemModel::layoutChanged, this, &DocBrowser::shownRowsChanged);
    connect(d->shown, &QAbstractItemModel::rowsRemoved, this, &DocBrowser::shownRowsChanged);
    connect(d->frozen, &FrozenColumnsView::contextMenuRequested, this,
            [this](const QPoint& globalPos) { ShowContextMenu(globalPos); });
}

DocBrowser::~DocBrowser() = default;

void DocBrowser::Initialize(ImplDocConfig* settings)
{
    d->settings = settings;
    d->list.SetConfig(settings);
    QFont dataFont = font();
    dataFont.setWeight(QFont::Normal);
    setFont(dataFont);
    verticalHeader()->setDefaultSectionSize(QFontMetrics(dataFont).height() + 4);
    InsertColumns();
    show();
}

int DocBrowser::DefaultColumnWidth(unsigned short columnId) const
{
    const QFontMetrics metrics(font());
    const int x = metrics.horizontalAdvance(QStringLiteral("X"));
    switch (columnId) {
    case COL_NAME: return 10 * x;
    case COL_SIZE: return 8 * x;
    case COL_TITLE: return 15 * x;
    case COL_DIRECTORY: return 20 * x;
    default: return std::max(50, metrics.horizontalAdvance(QString::fromStdString(GetColumnTitle(columnId))) + 10);
    }
}

ImplDocConfig* DocBrowser::GetSettings() const
{
    return d->settings;
}

void DocBrowser::SetDirFileName(const std::string& name)
{
    d->dirFileName = name;
}

void DocBrowser::SetCollectPaths(const std::string& paths)
{
    d->collectPaths = paths;
}

void DocBrowser::InsertColumns()
{
    const ImplDocConfig* settings = d->settings;
    if (!settings)
        return;
    const bool single = d->singleView;
    auto selected = d->SelectedIntervals();
    if (single && !selected.empty())
        selected = {{selected.front().first, selected.front().first}};
    const int currentRow = currentIndex().row();

    const bool updates = updatesEnabled();
    setUpdatesEnabled(false);
    d->settingColumns = true;
    std::vector<uint16_t> ids;
    std::vector<QString> titles;
    std::vector<int> widths;
    const DocGroupConfig& group = settings->WorkingGroup();
    if (single) {
        ids.push_back(COL_NAME);
        titles.push_back(QString::fromStdString(GetColumnTitle(COL_NAME)));
    } else {
        for (unsigned p = 0; p < COLUMN_SLOTS; ++p) {
            const uint16_t id = group.columnId[p];
            ids.push_back(id);
            titles.push_back(QString::fromStdString(GetColumnTitle(id)));
            widths.push_back(group.columnWidth[p] == DEFAULT_WIDTH ? DefaultColumnWidth(id) : group.columnWidth[p]);
        }
    }
    d->model->SetColumns(std::move(ids), std::move(titles));
    QHeaderView* header = horizontalHeader();
    if (single) {
        header->setSectionResizeMode(QHeaderView::Stretch);  // the one column fills the list
    } else {
        header->setSectionResizeMode(QHeaderView::Interactive);
        for (size_t c = 0; c < widths.size(); ++c)
            header->resizeSection(int(c), widths[c]);
    }
    d->frozen->SetFrozenCount(single ? 0 : group.frozenColumns);
    d->SelectIntervals(selected);
    if (currentRow >= 0 && currentRow < d->shown->rowCount())
        selectionModel()->setCurrentIndex(d->shown->index(currentRow, 0), QItemSelectionModel::NoUpdate);
    d->settingColumns = false;
    setUpdatesEnabled(updates);
    viewport()->update();
}

void DocBrowser::RowRemoved(const std::string& path)
{
    d->model->RowsRemoved(d->list.RowRemoved(path), d->list);
}

void DocBrowser::CollectFiles(bool onlyIfNeeded)
{
    if (onlyIfNeeded && !d->list.NeedsCollect())
        return;
    ScopedWaitCursor wait;
    d->model->HideRows();  // nothing to show while the list is rebuilt
    const std::string paths = d->collectPaths;
    d->list.SetConfig(d->settings);
    if (!d->dirFileName.empty())
        d->list.SetDirFileName(d->dirFileName);
    d->progress.Start();
    d->listedDirs.clear();
    d->list.CollectFiles(paths);
    d->progress.Finish();
    d->model->ShowRows(d->list);
    InsertColumns();
    emit countLineChanged(QString::fromStdString(std::to_string(GetRowCount()) + ResString(STR_COUNT_LINE) + paths));
    // The rows are new and none is selected: the controls and the pane follow.
    emit selectionStateChanged();
}

void DocBrowser::SortFiles(bool repaint)
{
    ScopedWaitCursor wait;
    d->list.SortFiles();
    d->model->RowsReordered(d->list);
    if (repaint)
        viewport()->update();
}

const std::string* DocBrowser::GetFirstDoc()
{
    return d->list.GetFirstDoc(*d);
}

const std::string* DocBrowser::GetNextDoc()
{
    return d->list.GetNextDoc(*d);
}

std::string DocBrowser::GetFieldString(const DocInfo& info, unsigned short columnId) const
{
    return ::GetFieldString(info, columnId);
}

std::string DocBrowser::GetColumnText(long row, unsigned short columnId) const
{
    return row >= 0 && row < GetRowCount() ? GetFieldString(d->list.Row(row), columnId) : std::string();
}

long DocBrowser::GetRowCount() const
{
    return d->list.GetRowCount();
}

const DocRowList& DocBrowser::GetRowList() const
{
    return d->list;
}

const std::vector<std::string>& DocBrowser::ListedDirs() const
{
    return d->listedDirs;
}

long DocBrowser::GetShownRowCount() const
{
    return d->shown->rowCount();
}

std::vector<long> DocBrowser::ShownRows() const
{
    std::vector<long> rows;
    rows.reserve(size_t(d->shown->rowCount()));
    for (int row = 0; row < d->shown->rowCount(); ++row)
        if (const long listRow = d->ListRow(row); listRow >= 0 && listRow < GetRowCount())
            rows.push_back(listRow);
    return rows;
}

void DocBrowser::SetFindText(const std::string& text)
{
    d->shown->SetFindText(text);
}

void DocBrowser::PrepareFind()
{
    d->shown->Prepare();
}

const std::string& DocBrowser::GetFindText() const
{
    return d->shown->FindText();
}

unsigned short DocBrowser::ColCount() const
{
    return static_cast<unsigned short>(d->model->columnCount());
}

unsigned short DocBrowser::GetColumnId(unsigned short position) const
{
    return d->model->ColumnId(position);
}

std::string DocBrowser::GetColumnTitle(unsigned short columnId) const
{
    return d->settings ? ::GetColumnTitle(columnId, d->settings->WorkingGroup()) : std::string();
}

bool DocBrowser::IsSingleView() const
{
    return d->singleView;
}

void DocBrowser::SetSingleView(bool single)
{
    d->singleView = single;
    setSelectionMode(single ? QAbstractItemView::SingleSelection : QAbstractItemView::ExtendedSelection);
    d->frozen->setSelectionMode(selectionMode());
}

long DocBrowser::GetSelectedRowCount() const
{
    long count = 0;
    for (const auto& [top, bottom] : d->SelectedIntervals())
        count += bottom - top + 1;
    return count;
}

long DocBrowser::GetFirstSelectedRow() const
{
    return d->FirstSelected();
}

void DocBrowser::DeselectFirstSelected()
{
    const auto selected = d->SelectedIntervals();
    if (!selected.empty())
        selectionModel()->select(d->shown->index(int(selected.front().first), 0),
                                 QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

void DocBrowser::ClearSelection()
{
    clearSelection();
}

void DocBrowser::SelectPaths(const std::vector<std::string>& paths)
{
    const std::set<std::string> wanted(paths.begin(), paths.end());
    std::vector<std::pair<long, long>> rows;
    const auto& list = d->list.Rows();
    for (long row = 0; row < long(list.size()); ++row)
        if (wanted.count(list[size_t(row)]->entry))
            if (const long shown = d->ViewRow(row); shown >= 0)
                rows.emplace_back(shown, shown);
    clearSelection();
    d->SelectIntervals(rows);
    if (!rows.empty()) {
        const QModelIndex first = d->shown->index(int(rows.front().first), 0);
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
}

DocListModel* DocBrowser::GetModel() const
{
    return d->model;
}

FrozenColumnsView* DocBrowser::GetFrozenView() const
{
    return d->frozen;
}

CollectProgress& DocBrowser::GetCollectProgress() const
{
    return d->progress;
}
