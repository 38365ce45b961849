// Ordering rows by one column: text byte-wise, numbers by value, the directory by path.
#include <gtest/gtest.h>

#include <functional>

#include "docmgr/records/docsort.h"

using Entries = std::vector<std::string>;

// Rows with these entries, each changed by `fill` (given its index), sorted; their entries.
static Entries Sorted(const Entries& entries, uint16_t column, bool ascending,
                      const std::function<void(DocInfo&, size_t)>& fill = {})
{
    std::vector<std::unique_ptr<DocInfo>> rows;
    for (const std::string& entry : entries) {
        rows.push_back(std::make_unique<DocInfo>());
        rows.back()->entry = entry;
        if (fill)
            fill(*rows.back(), rows.size() - 1);
    }
    SortRows(rows, column, ascending);
    Entries sorted;
    for (const auto& row : rows)
        sorted.push_back(row->entry);
    return sorted;
}

TEST(DocSort, TextIsByteWiseAndCaseSensitiveNumbersGoByValue)
{
    const Entries titles = {"apple", "Zebra", "\xC3\xA9t\xC3\xA9", "Apple"};
    const auto title = [&](DocInfo& row, size_t i) { row.title = titles[i]; };
    EXPECT_EQ(Sorted(titles, 3, true, title), (Entries{"Apple", "Zebra", "apple", "\xC3\xA9t\xC3\xA9"}));
    EXPECT_EQ(Sorted(titles, 3, false, title), (Entries{"\xC3\xA9t\xC3\xA9", "apple", "Zebra", "Apple"}));
    // Column 1 is the last component only; unknown ids leave the order as it is.
    EXPECT_EQ(Sorted({"/a/zz.odt", "/z/aa.odt"}, 1, true), (Entries{"/z/aa.odt", "/a/zz.odt"}));
    EXPECT_EQ(Sorted({"/b", "/a"}, 21, true), (Entries{"/b", "/a"}));
    EXPECT_EQ(Sorted({"/b/x.odt", "/a/sub/y.odt", "/top.odt", "/a/z.odt"}, 20, true),
              (Entries{"/top.odt", "/a/z.odt", "/a/sub/y.odt", "/b/x.odt"}));

    // Never modified (date 0) sorts first; times are signed, sizes unsigned.
    const Entries entries = {"0", "1", "2"};
    const Date dates[] = {Date(1, 1, 2020), Date(0), Date(31, 12, 1999)};
    EXPECT_EQ(Sorted(entries, 8, true, [&](DocInfo& row, size_t i) { row.modifiedDate = dates[i]; }),
              (Entries{"1", "2", "0"}));
    const Time times[] = {Time(0, 0, 1), Time(-int32_t(Time(1, 0, 0).GetTime())), Time(0)};
    EXPECT_EQ(Sorted(entries, 6, true, [&](DocInfo& row, size_t i) { row.createdTime = times[i]; }),
              (Entries{"1", "2", "0"}));
    const uint32_t sizes[] = {5, 0x80000000u, 7};
    EXPECT_EQ(Sorted(entries, 2, false, [&](DocInfo& row, size_t i) { row.size = sizes[i]; }), (Entries{"1", "2", "0"}));
}
