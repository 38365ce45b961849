// Which field each column reads, the cell texts, and ordering rows by one column: text
// byte-wise, numbers by value, the directory by path.
#include <gtest/gtest.h>

#include <functional>

#include "docmgr/records/docfields.h"
#include "docmgr/records/docsort.h"
#include "docmgr/tools/intl.h"

TEST(DocFields, EachColumnReadsItsOwnFieldAndCellTextsShowDashesForRepeatedStamps)
{
    using K = FieldKind;
    DocInfo info;
    // Unknown ids read the printed time, which the filter relies on.
    const struct {
        uint16_t id;
        FieldKind kind;
        const void* field;
    } columns[] = {{0, K::None, &info.printedTime},
                   {COL_NAME, K::Name, nullptr},
                   {COL_SIZE, K::Size, nullptr},
                   {COL_TITLE, K::Text, &info.title},
                   {COL_TOPIC, K::Text, &info.topic},
                   {COL_CREATED_DATE, K::Date, &info.createdDate},
                   {COL_CREATED_TIME, K::Time, &info.createdTime},
                   {COL_AUTHOR, K::Text, &info.author},
                   {COL_MODIFIED_DATE, K::Date, &info.modifiedDate},
                   {COL_MODIFIED_TIME, K::Time, &info.modifiedTime},
                   {COL_MODIFIED_BY, K::Text, &info.modifiedBy},
                   {COL_PRINTED_DATE, K::Date, &info.printedDate},
                   {COL_PRINTED_TIME, K::Time, &info.printedTime},
                   {COL_PRINTED_BY, K::Text, &info.printedBy},
                   {COL_COMMENT, K::Text, &info.comment},
                   {COL_KEYWORDS, K::Text, &info.keywords},
                   {COL_INFO0, K::Text, &info.info[0]},
                   {COL_INFO3, K::Text, &info.info[3]},
                   {COL_DIRECTORY, K::Directory, nullptr},
                   {21, K::None, &info.printedTime}};
    for (const auto& c : columns) {
        EXPECT_EQ(KindOfColumn(c.id), c.kind) << c.id;
        const void* field = nullptr;
        if (c.kind == K::Text)
            field = &TextField(info, c.id);
        else if (c.kind == K::Date)
            field = &DateField(info, c.id);
        else if (c.kind == K::Time || c.kind == K::None)
            field = &TimeField(info, c.id);
        EXPECT_EQ(field, c.field) << c.id;
    }

    // Cell texts show dashes for repeated stamps.
    DocInfo cell;
    cell.entry = "/home/user/docs/report.odt";
    cell.createdDate = cell.modifiedDate = cell.printedDate = Date(2, 1, 2020);
    cell.createdTime = cell.printedTime = Time(10, 0, 0);
    cell.modifiedTime = Time(11, 30, 0);
    cell.printedBy = "Printer";
    cell.info[3] = "three";
    const struct {
        uint16_t id;
        std::string text;
    } cells[] = {{COL_NAME, "report.odt"},
                 {COL_SIZE, "0"},
                 {COL_DIRECTORY, "/home/user/docs"},
                 {COL_INFO3, "three"},
                 {0, ""},
                 {21, ""},
                 // Modified on the creation day: the date is judged alone, the time separately.
                 {COL_MODIFIED_DATE, "---"},
                 {COL_MODIFIED_TIME, intl::FormatTime(cell.modifiedTime)},
                 // Never printed: all three printed columns.
                 {COL_PRINTED_DATE, "---"},
                 {COL_PRINTED_TIME, "---"},
                 {COL_PRINTED_BY, "---"}};
    for (const auto& c : cells)
        EXPECT_EQ(GetFieldString(cell, c.id), c.text) << c.id;

    // Printed on the creation day at another time: the printed columns show values.
    cell.printedTime = Time(10, 0, 1);
    cell.size = 4000000000u;
    EXPECT_EQ(GetFieldString(cell, COL_PRINTED_DATE), intl::FormatDate(cell.createdDate));
    EXPECT_EQ(GetFieldString(cell, COL_PRINTED_BY), "Printer");
    EXPECT_EQ(GetFieldString(cell, COL_SIZE), "4000000000");
    // The unset date after a trip through the index shows no text, nor does its time.
    cell.createdDate = Date(20480000);
    EXPECT_EQ(GetFieldString(cell, COL_CREATED_DATE), "");
    EXPECT_EQ(GetFieldString(cell, COL_CREATED_TIME), "");
    EXPECT_NE(GetFieldString(cell, COL_MODIFIED_DATE), "---");
}

using Entries = std::vector<std::string>;

// Rows with these entries, each changed by `fill` (given its index), sorted; their entries.
static Entries Sorted(const Entries& entries, uint16_t column, bool ascending, const std::function<void(DocInfo&, size_t)>& fill = {})
{
    RowStore store;
    std::vector<RowStore::Id> rows;
    for (const std::string& entry : entries) {
        DocInfo row;
        row.entry = entry;
        if (fill)
            fill(row, rows.size());
        rows.push_back(store.Add(row));
    }
    SortRows(store, rows, column, ascending);
    Entries sorted;
    for (const RowStore::Id row : rows)
        sorted.push_back(store.EntryOf(row));
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
    EXPECT_EQ(Sorted(entries, 8, true, [&](DocInfo& row, size_t i) { row.modifiedDate = dates[i]; }), (Entries{"1", "2", "0"}));
    const Time times[] = {Time(0, 0, 1), Time(-int32_t(Time(1, 0, 0).GetTime())), Time(0)};
    EXPECT_EQ(Sorted(entries, 6, true, [&](DocInfo& row, size_t i) { row.createdTime = times[i]; }), (Entries{"1", "2", "0"}));
    const uint32_t sizes[] = {5, 0x80000000u, 7};
    EXPECT_EQ(Sorted(entries, 2, false, [&](DocInfo& row, size_t i) { row.size = sizes[i]; }), (Entries{"1", "2", "0"}));
}
