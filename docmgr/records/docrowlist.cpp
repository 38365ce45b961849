// The row list: collecting the path list, filtering, sorting, and walking the selection.
#include "docmgr/records/docrowlist.h"

#include "docmgr/config/impldocconfig.h"
#include "docmgr/config/pathrules.h"
#include "docmgr/records/docsort.h"
#include "docmgr/records/matches.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/tokens.h"

namespace {
// Stands in when nobody listens: its reports do nothing.
CollectObserver& NoObserver()
{
    static CollectObserver none;
    return none;
}
}  // namespace

DocRowList::DocRowList(DocSource& source, CollectObserver* observer)
    : source_(source), observer_(observer ? *observer : NoObserver())
{}

DocRowList::~DocRowList() = default;

void DocRowList::CollectFiles(const std::string& pathList)
{
    intl::ReloadPatterns();  // once a listing, not once a stamp
    Clear();
    dirsRead_ = 0;
    probed_ = 0;
    for (const std::string& token : tokens::Split(pathList, ';')) {
        const std::string dir = WoutSub(token);
        // A file or a vanished directory among the paths is no error.
        if (!dir.empty() && fsutil::IsDirectory(dir))
            ReadWriteDocInfos(dir, TestSub(token));
    }
    needsCollect_ = false;
    if (config_ && FilterInForce(config_->WorkingGroup()))
        ApplyFilter();
    SortFiles();
}

void DocRowList::ApplyFilter()
{
    if (!config_)
        return;
    DocInfo row;  // one DocInfo for every test
    std::erase_if(rows_, [this, &row](RowStore::Id id) {
        store_.Fill(id, row);
        return !Matches(row, *config_);
    });
}

void DocRowList::KeepRows(const std::vector<size_t>& positions)
{
    decltype(rows_) kept;
    kept.reserve(positions.size());
    for (const size_t row : positions)
        if (row < rows_.size())
            kept.push_back(std::move(rows_[row]));
    rows_ = std::move(kept);
    currentRow_ = -1;
}

void DocRowList::SortFiles()
{
    if (!config_)
        return;
    const DocGroupConfig& group = config_->WorkingGroup();
    if (group.sortColumnId == NO_COLUMN)
        return;
    SortRows(store_, rows_, group.sortColumnId, group.sortAscending);
}

std::vector<long> DocRowList::RowRemoved(const std::string& path)
{
    const std::string full = fsutil::Absolute(path);
    const std::string_view folder = FolderPart(full);
    const std::string_view name = std::string_view(full).substr(folder.size());
    std::vector<long> removed;
    for (size_t row = rows_.size(); row-- > 0;) {
        if (store_.TextOf(rows_[row], RowStore::NAME) == name && store_.FolderOf(rows_[row]) == folder) {
            rows_.erase(rows_.begin() + long(row));
            removed.push_back(long(row));
        }
    }
    return removed;
}

DocInfo DocRowList::Row(long row) const
{
    DocInfo info;
    store_.Fill(rows_[size_t(row)], info);
    return info;
}

// The old row stays in the store, unseen, until the next collection empties it.
void DocRowList::ReplaceRow(long row, std::unique_ptr<DocInfo> info)
{
    if (row >= 0 && row < GetRowCount() && info)
        rows_[size_t(row)] = store_.Add(*info);
}

void DocRowList::Clear()
{
    std::vector<RowStore::Id>().swap(rows_);
    store_.Clear();
    currentRow_ = -1;
}

const std::string* DocRowList::GetFirstDoc(const DocSelection& selection)
{
    return WalkTo(selection.FirstSelected());
}

const std::string* DocRowList::GetNextDoc(const DocSelection& selection)
{
    if (currentRow_ < 0)
        return nullptr;  // no walk running, or it ended
    return WalkTo(selection.NextSelected(currentRow_));
}

const std::string* DocRowList::WalkTo(long row)
{
    if (row < 0 || row >= GetRowCount()) {
        currentRow_ = -1;
        return nullptr;
    }
    currentRow_ = row;
    currentDoc_ = fsutil::Absolute(store_.EntryOf(rows_[size_t(row)]));
    return &currentDoc_;
}
