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

std::string_view NameOf(const std::string& entry)
{
    const size_t slash = entry.rfind('/');
    return slash == std::string::npos ? std::string_view(entry) : std::string_view(entry).substr(slash + 1);
}

// The key of one row for the running sort: a number or a view of the row's own text
// (the DocInfos are not moved while the sort runs, so the views stay valid).
struct SortKey {
    int64_t number = 0;
    std::string_view text;
    size_t row = 0;
};

int64_t NumberKey(const DocInfo& info, uint16_t columnId)
{
    switch (KindOfColumn(columnId)) {
    case FieldKind::Size: return info.size;
    case FieldKind::Date: return DateField(info, columnId).GetDate();
    case FieldKind::Time: return TimeField(info, columnId).GetTime();
    default: return 0;
    }
}

// `owned` keeps the directory texts of entries that are not absolute; it is reserved
// for every row, so views into it stay valid. Entries of the list are absolute, so the
// directory is the text before the last delimiter; that orders like the full directory
// path ("/" for the root sorts first either way).
std::string_view TextKey(const DocInfo& info, uint16_t columnId, std::vector<std::string>& owned)
{
    switch (KindOfColumn(columnId)) {
    case FieldKind::Name: return NameOf(info.entry);
    case FieldKind::Directory:
        if (!info.entry.empty() && info.entry.front() == '/')
            return std::string_view(info.entry).substr(0, info.entry.rfind('/'));
        return owned.emplace_back(fsutil::DirName(info.entry));
    default: return TextField(info, columnId);
    }
}

}  // namespace

void SortRows(std::vector<std::unique_ptr<DocInfo>>& rows, uint16_t columnId, bool ascending)
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
        keys[i].row = i;
        if (text)
            keys[i].text = TextKey(*rows[i], columnId, owned);
        else
            keys[i].number = NumberKey(*rows[i], columnId);
    }
    // Unstable on purpose: rows with equal keys keep no defined order. Text compares
    // byte-wise, as unsigned bytes, over the whole length.
    auto less = [text](const SortKey& a, const SortKey& b) {
        const int c = text ? CompareText(a.text, b.text) : Sign(a.number <=> b.number);
        return sortAscending ? c < 0 : c > 0;
    };
    std::sort(keys.begin(), keys.end(), less);
    std::vector<std::unique_ptr<DocInfo>> sorted;
    sorted.reserve(rows.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(rows[key.row]));
    rows = std::move(sorted);
}
