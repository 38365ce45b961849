#include "docmgr/records/docsort.h"

#include <algorithm>
#include <compare>
#include <string_view>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/fsutil.h"

namespace {

// The comparison sees only the two keys, so the direction of the running sort lives
// here; two sorts never run at once (UI thread only).
bool sortAscending = true;

int Sign(std::strong_ordering order)
{
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

// Byte-wise over the whole length, case-sensitive, no collation.
int CompareText(std::string_view a, std::string_view b)
{
    return Sign(a.compare(b) <=> 0);
}

// The key of one row for the running sort: a number or a view of the row's own text
// (the store does not move while the sort runs, so the views stay valid).
struct SortKey {
    int64_t number = 0;
    std::string_view text;
    RowStore::Id row = 0;
};

// Which of the stamps (created, modified, printed) a date or time column shows.
int StampOf(uint16_t columnId)
{
    return columnId <= COL_CREATED_TIME ? 0 : columnId <= COL_MODIFIED_TIME ? 1 : 2;
}

int64_t NumberKey(const RowStore& store, RowStore::Id row, uint16_t columnId)
{
    switch (KindOfColumn(columnId)) {
    case FieldKind::Size: return store.SizeOf(row);
    case FieldKind::Date: return store.DateOf(row, StampOf(columnId));
    case FieldKind::Time: return store.TimeOf(row, StampOf(columnId));
    default: return 0;
    }
}

RowStore::Text StoredText(uint16_t columnId)
{
    switch (columnId) {
    case COL_TITLE: return RowStore::TITLE;
    case COL_TOPIC: return RowStore::TOPIC;
    case COL_AUTHOR: return RowStore::AUTHOR;
    case COL_MODIFIED_BY: return RowStore::MODIFIED_BY;
    case COL_PRINTED_BY: return RowStore::PRINTED_BY;
    case COL_COMMENT: return RowStore::COMMENT;
    case COL_KEYWORDS: return RowStore::KEYWORDS;
    default: return RowStore::Text(RowStore::INFO0 + (columnId - COL_INFO0) % 4);
    }
}

// `owned` keeps the directory texts of entries that are not absolute; it is reserved
// for every row, so views into it stay valid. Entries of the list are absolute, so the
// directory is the text before the last delimiter; that orders like the full directory
// path ("/" for the root sorts first either way).
std::string_view TextKey(const RowStore& store, RowStore::Id row, uint16_t columnId, std::vector<std::string>& owned)
{
    switch (KindOfColumn(columnId)) {
    case FieldKind::Name: return store.TextOf(row, RowStore::NAME);
    case FieldKind::Directory: {
        const std::string_view folder = store.FolderOf(row);
        if (!folder.empty() && folder.front() == '/')
            return folder.substr(0, folder.size() - 1);
        return owned.emplace_back(fsutil::DirName(store.EntryOf(row)));
    }
    default: return store.TextOf(row, StoredText(columnId));
    }
}

}  // namespace

void SortRows(const RowStore& store, std::vector<RowStore::Id>& rows, uint16_t columnId, bool ascending)
{
    sortAscending = ascending;
    const FieldKind kind = KindOfColumn(columnId);
    if (kind == FieldKind::None)
        return;  // every key is equal: no order is defined anyway
    // Keys are taken once per row rather than once per comparison.
    const bool text = kind == FieldKind::Name || kind == FieldKind::Text || kind == FieldKind::Directory;
    std::vector<std::string> owned;
    owned.reserve(kind == FieldKind::Directory ? rows.size() : 0);
    std::vector<SortKey> keys(rows.size());
    for (size_t i = 0; i < rows.size(); ++i) {
        keys[i].row = rows[i];
        if (text)
            keys[i].text = TextKey(store, rows[i], columnId, owned);
        else
            keys[i].number = NumberKey(store, rows[i], columnId);
    }
    // Unstable on purpose: rows with equal keys keep no defined order. Text compares
    // byte-wise, as unsigned bytes, over the whole length.
    auto less = [text](const SortKey& a, const SortKey& b) {
        const int c = text ? CompareText(a.text, b.text) : Sign(a.number <=> b.number);
        return sortAscending ? c < 0 : c > 0;
    };
    std::sort(keys.begin(), keys.end(), less);
    for (size_t i = 0; i < keys.size(); ++i)
        rows[i] = keys[i].row;
}
