// Which field each column reads, and the cell texts.
#include <gtest/gtest.h>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/intl.h"

TEST(DocFields, EachColumnReadsItsOwnField)
{
    using K = FieldKind;
    DocInfo info;
    // Unknown ids read the printed time, which the filter relies on.
    const struct { uint16_t id; FieldKind kind; const void* field; } columns[] = {
        {0, K::None, &info.printedTime}, {COL_NAME, K::Name, nullptr}, {COL_SIZE, K::Size, nullptr},
        {COL_TITLE, K::Text, &info.title}, {COL_TOPIC, K::Text, &info.topic},
        {COL_CREATED_DATE, K::Date, &info.createdDate}, {COL_CREATED_TIME, K::Time, &info.createdTime},
        {COL_AUTHOR, K::Text, &info.author}, {COL_MODIFIED_DATE, K::Date, &info.modifiedDate},
        {COL_MODIFIED_TIME, K::Time, &info.modifiedTime}, {COL_MODIFIED_BY, K::Text, &info.modifiedBy},
        {COL_PRINTED_DATE, K::Date, &info.printedDate}, {COL_PRINTED_TIME, K::Time, &info.printedTime},
        {COL_PRINTED_BY, K::Text, &info.printedBy}, {COL_COMMENT, K::Text, &info.comment},
        {COL_KEYWORDS, K::Text, &info.keywords}, {COL_INFO0, K::Text, &info.info[0]},
        {COL_INFO3, K::Text, &info.info[3]}, {COL_DIRECTORY, K::Directory, nullptr},
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
}

TEST(DocFields, CellTextsShowDashesForRepeatedStamps)
{
    DocInfo info;
    info.entry = "/home/user/docs/report.odt";
    info.createdDate = info.modifiedDate = info.printedDate = Date(2, 1, 2020);
    info.createdTime = info.printedTime = Time(10, 0, 0);
    info.modifiedTime = Time(11, 30, 0);
    info.printedBy = "Printer";
    info.info[3] = "three";
    const struct { uint16_t id; std::string text; } cells[] = {
        {COL_NAME, "report.odt"}, {COL_SIZE, "0"}, {COL_DIRECTORY, "/home/user/docs"},
        {COL_INFO3, "three"}, {0, ""}, {21, ""},
        // Modified on the creation day: the date is judged alone, the time separately.
        {COL_MODIFIED_DATE, "---"}, {COL_MODIFIED_TIME, intl::FormatTime(info.modifiedTime)},
        // Never printed: all three printed columns.
        {COL_PRINTED_DATE, "---"}, {COL_PRINTED_TIME, "---"}, {COL_PRINTED_BY, "---"}};
    for (const auto& c : cells)
        EXPECT_EQ(GetFieldString(info, c.id), c.text) << c.id;

    // Printed on the creation day at another time: the printed columns show values.
    info.printedTime = Time(10, 0, 1);
    info.size = 4000000000u;
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_DATE), intl::FormatDate(info.createdDate));
    EXPECT_EQ(GetFieldString(info, COL_PRINTED_BY), "Printer");
    EXPECT_EQ(GetFieldString(info, COL_SIZE), "4000000000");
    // The unset date after a trip through the index shows no text, nor does its time.
    info.createdDate = Date(20480000);
    EXPECT_EQ(GetFieldString(info, COL_CREATED_DATE), "");
    EXPECT_EQ(GetFieldString(info, COL_CREATED_TIME), "");
    EXPECT_NE(GetFieldString(info, COL_MODIFIED_DATE), "---");
}
