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

bool SortLess(const std::unique_ptr<DocInfo>& a, const std::unique_ptr<DocInfo>& b)
{
    const int c = CompareByColumn(*a, *b, sortColumnId);
    return sortAscending ? c < 0 : c > 0;
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
    // Unstable on purpose: rows with equal keys keep no defined order.
    std::sort(rows.begin(), rows.end(), SortLess);
}
