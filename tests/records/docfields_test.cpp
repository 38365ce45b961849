// Cell texts and column titles.
#include <gtest/gtest.h>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/records/docfields.h"
#include "docmgr/records/listcsv.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/resmgr.h"

namespace {

DocInfo Stamped()
{
    DocInfo info;
    info.entry = "/home/user/docs/report.odt";
    info.size = 0;
    info.createdDate = Date(2, 1, 2020);
    info.createdTime = Time(10, 0, 0);
    info.modifiedDate = Date(2, 1, 2020);
    info.modifiedTime = Time(11, 30, 0);
    info.printedDate = info.createdDate;
    info.printedTime = info.createdTime;
    info.printedBy = "Printer";
    info.info = {"zero", "one", "two", "three"};
    return info;
}

}  // namespace

TEST(DocFields, SameStampsShowDashes)
{
    DocInfo info = Stamped();
    EXPECT_EQ(GetFieldString(info, COL_NAME), "report.odt");
    EXPECT_EQ(GetFieldString(info, COL_SIZE), "0");
    EXPECT_EQ(GetFieldString(info, COL_DIRECTORY), "/home/user/docs");
    EXPECT_EQ(GetFieldString(info, COL_INFO3), "three");
    EXPECT_FALSE(GetFieldString(info, COL_CREATED_DATE).empty());

    // Modified on the creation day: the date is judged alone, the time separately.
    EXPECT_EQ(GetFieldString(info, COL_MODIFIED_DATE), "---");
    EXPECT_EQ(GetFieldString(info, COL_MODIFIED_TIME), intl::FormatTime(info.modifiedTime));
    // Never printed: all three printed columns.
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_DATE), "---");
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_TIME), "---");
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_BY), "---");

    // Printed on the creation day at another time: the printed columns show values.
    info.printedTime = Time(10, 0, 1);
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_DATE), GetFieldString(info, COL_CREATED_DATE));
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_BY), "Printer");

    info.size = 4000000000u;
    EXPECT_EQ(GetFieldString(info, COL_SIZE), "4000000000");
    EXPECT_EQ(GetFieldString(info, 0), "");
    EXPECT_EQ(GetFieldString(info, 21), "");
}

TEST(DocFields, UnsetDatesShowNoText)
{
    DocInfo info;
    info.entry = "/a.odt";
    info.createdDate = Date(20480000);  // the unset date after a trip through the index
    info.createdTime = Time(0);
    info.modifiedDate = Date(3, 4, 2021);
    EXPECT_EQ(GetFieldString(info, COL_CREATED_DATE), "");
    EXPECT_EQ(GetFieldString(info, COL_CREATED_TIME), "");
    EXPECT_NE(GetFieldString(info, COL_MODIFIED_DATE), "---");
    EXPECT_EQ(GetFieldString(info, COL_DIRECTORY), "/");
}

TEST(DocFields, ColumnTitles)
{
    DocGroupConfig group;
    group.infoLabel = {"Project", "Client", "", "Status"};
    EXPECT_EQ(GetColumnTitle(COL_NAME, group), "File name");
    EXPECT_EQ(GetColumnTitle(COL_SIZE, group), "Size");
    EXPECT_EQ(GetColumnTitle(COL_TITLE, group), "Title");
    EXPECT_EQ(GetColumnTitle(COL_KEYWORDS, group), "Keywords");
    EXPECT_EQ(GetColumnTitle(COL_INFO0, group), "Project");
    EXPECT_EQ(GetColumnTitle(COL_INFO3, group), "Status");
    EXPECT_EQ(GetColumnTitle(COL_DIRECTORY, group), "Directory");
    EXPECT_EQ(GetColumnTitle(0, group), "");
    EXPECT_EQ(GetColumnTitle(21, group), "");
}

TEST(DocFields, CsvRecordsQuoteOnlyWhatNeedsIt)
{
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"plain", "Zoë"}, "plain,Zoë\r\n"},
        {{"a,b", "say \"hi\""}, "\"a,b\",\"say \"\"hi\"\"\"\r\n"},
        {{"two\nlines", "cr\r"}, "\"two\nlines\",\"cr\r\"\r\n"},
        {{"", ""}, ",\r\n"},
    };
    for (const auto& [fields, expected] : cases) {
        std::string out;
        AppendCsvRecord(out, fields);
        EXPECT_EQ(out, expected);
    }
}
