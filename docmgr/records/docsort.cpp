#include "docmgr/records/docsort.h"

#include <algorithm>
#include <compare>
#include <string_view>

#include "docmgr/tools/fsutil.h"

namespace {

// The comparison sees only the two rows, so the column and direction of the running
// sort live here; two sorts never run at once (UI thread only).
uint16_t sortColumnId = 0;
bool sortAscending = true;

int Sign(std::strong_ordering order)
{
    return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

template <typename T>
int Compare(const T& a, const T& b)
{
    return Sign(a <=> b);
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

// Entries of the list are absolute, so the directory is the text before the last
// delimiter; that orders like the full directory path ("/" for the root sorts first
// either way).
int CompareDirectory(const std::string& a, const std::string& b)
{
    if (a.empty() || a.front() != '/' || b.empty() || b.front() != '/')
        return CompareText(fsutil::DirName(a), fsutil::DirName(b));
    return CompareText(std::string_view(a).substr(0, a.rfind('/')),
                       std::string_view(b).substr(0, b.rfind('/')));
}

// The key of one row for the running sort: a number or a view of the row's own text
// (the DocInfos are not moved while the sort runs, so the views stay valid).
struct SortKey {
    int64_t number = 0;
    std::string_view text;
    size_t row = 0;
};

bool IsTextColumn(uint16_t columnId)
{
    return columnId == 1 || columnId == 3 || columnId == 4 || columnId == 7 || columnId == 10 ||
           (columnId >= 13 && columnId <= 20);
}

int64_t NumberKey(const DocInfo& info, uint16_t columnId)
{
    switch (columnId) {
    case 2: return info.size;
    case 5: return info.createdDate.GetDate();
    case 6: return info.createdTime.GetTime();
    case 8: return info.modifiedDate.GetDate();
    case 9: return info.modifiedTime.GetTime();
    case 11: return info.printedDate.GetDate();
    case 12: return info.printedTime.GetTime();
    default: return 0;
    }
}

// `owned` keeps the directory texts of entries that are not absolute; it is reserved
// for every row, so views into it stay valid.
std::string_view TextKey(const DocInfo& info, uint16_t columnId, std::vector<std::string>& owned)
{
    switch (columnId) {
    case 1: return NameOf(info.entry);
    case 3: return info.title;
    case 4: return info.topic;
    case 7: return info.author;
    case 10: return info.modifiedBy;
    case 13: return info.printedBy;
    case 14: return info.comment;
    case 15: return info.keywords;
    case 20:
        if (!info.entry.empty() && info.entry.front() == '/')
            return std::string_view(info.entry).substr(0, info.entry.rfind('/'));
        return owned.emplace_back(fsutil::DirName(info.entry));
    default: return info.info[size_t(columnId - 16)];
    }
}

}  // namespace

int CompareByColumn(const DocInfo& a, const DocInfo& b, uint16_t columnId)
{
    switch (columnId) {
    case 1: return CompareText(NameOf(a.entry), NameOf(b.entry));
    case 2: return Compare(a.size, b.size);
    case 3: return CompareText(a.title, b.title);
    case 4: return CompareText(a.topic, b.topic);
    case 5: return Compare(a.createdDate.GetDate(), b.createdDate.GetDate());
    case 6: return Compare(a.createdTime.GetTime(), b.createdTime.GetTime());
    case 7: return CompareText(a.author, b.author);
    case 8: return Compare(a.modifiedDate.GetDate(), b.modifiedDate.GetDate());
    case 9: return Compare(a.modifiedTime.GetTime(), b.modifiedTime.GetTime());
    case 10: return CompareText(a.modifiedBy, b.modifiedBy);
    case 11: return Compare(a.printedDate.GetDate(), b.printedDate.GetDate());
    case 12: return Compare(a.printedTime.GetTime(), b.printedTime.GetTime());
    case 13: return CompareText(a.printedBy, b.printedBy);
    case 14: return CompareText(a.comment, b.comment);
    case 15: return CompareText(a.keywords, b.keywords);
    case 16:
    case 17:
    case 18:
    case 19: return CompareText(a.info[columnId - 16], b.info[columnId - 16]);
    case 20: return CompareDirectory(a.entry, b.entry);
    default: return 0;
    }
}

void SortRows(std::vector<std::unique_ptr<DocInfo>>& rows, uint16_t columnId, bool ascending)
{
    sortColumnId = columnId;
    sortAscending = ascending;
    if (columnId < 1 || columnId > 20)
        return;  // every key is equal: no order is defined anyway
    // Keys are taken once per row rather than once per comparison.
    const bool text = IsTextColumn(columnId);
    std::vector<std::string> owned;
    owned.reserve(columnId == 20 ? rows.size() : 0);
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
        const int c = text ? CompareText(a.text, b.text) : Compare(a.number, b.number);
        return sortAscending ? c < 0 : c > 0;
    };
    std::sort(keys.begin(), keys.end(), less);
    std::vector<std::unique_ptr<DocInfo>> sorted;
    sorted.reserve(rows.size());
    for (const SortKey& key : keys)
        sorted.push_back(std::move(rows[key.row]));
    rows = std::move(sorted);
}
