// Ordering rows by one column: text byte-wise, numbers by value, the directory by path.
#include <gtest/gtest.h>

#include "docmgr/records/docsort.h"

namespace {

using Rows = std::vector<std::unique_ptr<DocInfo>>;

// Rows with the given entries, each changed by `fill` (given its index).
template <typename Fill>
Rows MakeRows(const std::vector<std::string>& entries, Fill fill)
{
    Rows rows;
    for (const std::string& entry : entries) {
        rows.push_back(std::make_unique<DocInfo>());
        rows.back()->entry = entry;
        fill(*rows.back(), rows.size() - 1);
    }
    return rows;
}

std::vector<std::string> Sorted(Rows rows, uint16_t column, bool ascending)
{
    SortRows(rows, column, ascending);
    std::vector<std::string> entries;
    for (const auto& row : rows)
        entries.push_back(row->entry);
    return entries;
}

using Entries = std::vector<std::string>;

}  // namespace

TEST(DocSort, TextIsByteWiseAndCaseSensitive)
{
    const Entries titles = {"apple", "Zebra", "\xC3\xA9t\xC3\xA9", "Apple"};
    auto copy = [&] { return MakeRows(titles, [&](DocInfo& row, size_t i) { row.title = titles[i]; }); };
    EXPECT_EQ(Sorted(copy(), 3, true), (Entries{"Apple", "Zebra", "apple", "\xC3\xA9t\xC3\xA9"}));
    EXPECT_EQ(Sorted(copy(), 3, false), (Entries{"\xC3\xA9t\xC3\xA9", "apple", "Zebra", "Apple"}));
    // Column 1 is the last component only; unknown ids leave the order as it is.
    auto none = [](DocInfo&, size_t) {};
    EXPECT_EQ(Sorted(MakeRows({"/a/zz.odt", "/z/aa.odt"}, none), 1, true), (Entries{"/z/aa.odt", "/a/zz.odt"}));
    EXPECT_EQ(Sorted(MakeRows({"/b", "/a"}, none), 21, true), (Entries{"/b", "/a"}));
    EXPECT_EQ(Sorted(MakeRows({"/b/x.odt", "/a/sub/y.odt", "/top.odt", "/a/z.odt"}, none), 20, true),
              (Entries{"/top.odt", "/a/z.odt", "/a/sub/y.odt", "/b/x.odt"}));
}

TEST(DocSort, DatesTimesAndSizesByValue)
{
    const Entries entries = {"0", "1", "2"};
    // Never modified (date 0) sorts first.
    const Date dates[] = {Date(1, 1, 2020), Date(0), Date(31, 12, 1999)};
    EXPECT_EQ(Sorted(MakeRows(entries, [&](DocInfo& row, size_t i) { row.modifiedDate = dates[i]; }), 8, true),
              (Entries{"1", "2", "0"}));
    // Times are signed.
    const Time times[] = {Time(0, 0, 1), Time(-int32_t(Time(1, 0, 0).GetTime())), Time(0)};
    EXPECT_EQ(Sorted(MakeRows(entries, [&](DocInfo& row, size_t i) { row.createdTime = times[i]; }), 6, true),
              (Entries{"1", "2", "0"}));
    // Sizes are unsigned.
    const uint32_t sizes[] = {5, 0x80000000u, 7};
    EXPECT_EQ(Sorted(MakeRows(entries, [&](DocInfo& row, size_t i) { row.size = sizes[i]; }), 2, false),
              (Entries{"1", "2", "0"}));
}
