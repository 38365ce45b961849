// Ordering rows by one column.
#include <gtest/gtest.h>

#include "docmgr/records/docsort.h"

namespace {

using Rows = std::vector<std::unique_ptr<DocInfo>>;

std::unique_ptr<DocInfo> Row(const std::string& entry)
{
    auto info = std::make_unique<DocInfo>();
    info->entry = entry;
    return info;
}

std::vector<std::string> Entries(const Rows& rows)
{
    std::vector<std::string> entries;
    for (const auto& row : rows)
        entries.push_back(row->entry);
    return entries;
}

}  // namespace

TEST(DocSort, StringsAreByteWiseAndCaseSensitive)
{
    Rows rows;
    for (const char* title : {"apple", "Zebra", "\xC3\xA9t\xC3\xA9", "Apple"}) {
        rows.push_back(Row(std::string("/d/") + title));
        rows.back()->title = title;
    }
    SortRows(rows, 3, true);
    EXPECT_EQ(Entries(rows), (std::vector<std::string>{"/d/Apple", "/d/Zebra", "/d/apple", "/d/\xC3\xA9t\xC3\xA9"}));
    SortRows(rows, 3, false);
    EXPECT_EQ(rows.front()->title, "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(rows.back()->title, "Apple");

    // Column 1 is the last component only.
    Rows names;
    names.push_back(Row("/a/zz.odt"));
    names.push_back(Row("/z/aa.odt"));
    SortRows(names, 1, true);
    EXPECT_EQ(names.front()->entry, "/z/aa.odt");
}

TEST(DocSort, NumbersDatesAndTimes)
{
    Rows rows;
    for (int i = 0; i < 3; ++i)
        rows.push_back(Row("/d/" + std::to_string(i)));
    rows[0]->modifiedDate = Date(1, 1, 2020);
    rows[1]->modifiedDate = Date(0);  // never modified
    rows[2]->modifiedDate = Date(31, 12, 1999);
    SortRows(rows, 8, true);
    EXPECT_EQ(Entries(rows), (std::vector<std::string>{"/d/1", "/d/2", "/d/0"}));

    rows[0]->createdTime = Time(-int32_t(Time(1, 0, 0).GetTime()));
    rows[1]->createdTime = Time(0, 0, 1);
    rows[2]->createdTime = Time(0);
    SortRows(rows, 6, true);
    EXPECT_EQ(rows.front()->createdTime.GetTime(), -1000000) << "times are signed";

    rows[0]->size = 0x80000000u;
    rows[1]->size = 5;
    rows[2]->size = 7;
    SortRows(rows, 2, false);
    EXPECT_EQ(rows.front()->size, 0x80000000u) << "sizes are unsigned";
}

TEST(DocSort, DirectoryColumnAndUnknownIds)
{
    Rows rows;
    rows.push_back(Row("/b/x.odt"));
    rows.push_back(Row("/a/sub/y.odt"));
    rows.push_back(Row("/top.odt"));
    rows.push_back(Row("/a/z.odt"));
    SortRows(rows, 20, true);
    EXPECT_EQ(Entries(rows), (std::vector<std::string>{"/top.odt", "/a/z.odt", "/a/sub/y.odt", "/b/x.odt"}));

    DocInfo a, b;
    a.title = "a";
    b.title = "b";
    EXPECT_EQ(CompareByColumn(a, b, 3), -1);
    EXPECT_EQ(CompareByColumn(b, a, 3), 1);
    EXPECT_EQ(CompareByColumn(a, b, 0), 0);
    EXPECT_EQ(CompareByColumn(a, b, 21), 0);
}
