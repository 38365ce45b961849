// One group: reading defaults, the partial copy, assignment and the export line.
#include <gtest/gtest.h>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/tools/config.h"
#include "tests/config/configfixture.h"

using GroupTest = ConfigFileTest;

TEST_F(GroupTest, MissingKeysReadAsEmptyNotAsDefaults)
{
    WriteFile("[0]\nGROUPNAME=Only\n[1]\nFILTERFIELD0=0\nFILTERFIELD1=65535\n"
              "FILLTERCONDITION2=-7\nFILTERSENSITIVE=true\nSORTORDER=up\n"
              "[2]\nFILTERSENSITIVE=TRUE\nSORTORDER=UP\nFILTERCONDITION0=5\n");
    Config config(Path());

    const DocGroupConfig only(&config, 0);
    EXPECT_EQ(only.groupName, "Only");
    EXPECT_EQ(only.filterFiles, "");
    EXPECT_EQ(only.filterField, (std::array<uint16_t, 3>{1, 1, 1}));
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i) {
        EXPECT_EQ(only.columnId[i], 0u);
        EXPECT_EQ(only.columnWidth[i], 0u);
    }
    EXPECT_EQ(only.frozenColumns, 0u);
    EXPECT_EQ(only.sortColumnId, 0u);
    EXPECT_EQ(only.infoLabel[0], "");
    EXPECT_FALSE(only.sortAscending);
    EXPECT_FALSE(only.filterSensitive);

    const DocGroupConfig lower(&config, 1);
    EXPECT_EQ(lower.filterField[0], 1u);
    EXPECT_EQ(lower.filterField[1], 65535u);
    EXPECT_EQ(lower.filterCondition[2], -7);
    EXPECT_FALSE(lower.filterSensitive);
    EXPECT_FALSE(lower.sortAscending);

    // Flags are case-sensitive; the condition key is only known with its double L.
    const DocGroupConfig upper(&config, 2);
    EXPECT_TRUE(upper.filterSensitive);
    EXPECT_TRUE(upper.sortAscending);
    EXPECT_EQ(upper.filterCondition[0], 0);
}

TEST(GroupCopy, PartialCopyTakesTheLookAssignmentTakesEverything)
{
    DocGroupConfig source;
    source.groupName = "Letters";
    source.section = "Office";
    source.filterTitle = "Offer";
    source.filterKeywords = "tax";
    source.filterFiles = "*.odt";
    source.filterSensitive = true;
    source.filterField = {3, 4, 5};
    source.filterCondition = {1, 2, 3};
    source.filterValue = {"a", "b", "c"};
    source.filterLink = {1, 2};
    source.sortColumnId = 7;
    source.sortAscending = false;
    source.columnId[0] = 20;
    source.columnWidth[1] = 99;
    source.frozenColumns = 1;
    source.infoLabel[2] = "Client";
    source.paths = "/srv/docs/**";
    source.guis = "1";

    const DocGroupConfig copy(source);
    for (const std::string* empty : {&copy.groupName, &copy.section, &copy.filterTitle,
                                     &copy.filterKeywords, &copy.filterValue[0],
                                     &copy.filterValue[2], &copy.paths, &copy.guis})
        EXPECT_EQ(*empty, "");
    EXPECT_EQ(copy.filterFiles, "*.odt");
    EXPECT_TRUE(copy.filterSensitive);
    EXPECT_EQ(copy.filterField, source.filterField);
    EXPECT_EQ(copy.filterCondition, source.filterCondition);
    EXPECT_EQ(copy.filterDate, source.filterDate);
    EXPECT_EQ(copy.filterLink, source.filterLink);
    EXPECT_EQ(copy.sortColumnId, 7u);
    EXPECT_FALSE(copy.sortAscending);
    EXPECT_EQ(copy.columnId, source.columnId);
    EXPECT_EQ(copy.columnWidth, source.columnWidth);
    EXPECT_EQ(copy.frozenColumns, 1u);
    EXPECT_EQ(copy.infoLabel, source.infoLabel);

    DocGroupConfig assigned;
    assigned = source;
    EXPECT_EQ(assigned.Export(), source.Export());
    assigned.filterValue[0] = "changed";
    EXPECT_EQ(source.filterValue[0], "a");
}

TEST(GroupExport, DefaultGroupFromItsDocumentedPieces)
{
    DocGroupConfig group;
    group.filterDate = {20240131, 20240131, 20240131};
    group.filterTime = {12345678, 12345678, 12345678};
    const std::string rows = "([65535;0;;20240131;12345678;0;][1;0;;20240131;12345678;0;]"
                             "[1;0;;20240131;12345678;])";
    const std::string columns = "[B65535;C65535;D65535;E65535;F65535;G65535;H65535;I65535;"
                                "J65535;K65535;L65535;M65535;N65535;O65535;P65535;Q65535;"
                                "R65535;S65535;T65535;U65535;]";
    EXPECT_EQ(group.Export(), ";;[][][][][*][F]" + rows + "65535;T;" + columns + "3;" +
                                  "[Info 0;Info 1;Info 2;Info 3;][][]");

    // A column id travels as its low byte plus 65, wrapping at 256; names are not escaped.
    group.groupName = "a;b]";
    group.columnId[0] = 0x1FF;
    group.columnId[1] = 0;
    const std::string text = group.Export();
    EXPECT_EQ(text.substr(0, 5), "a;b];");
    EXPECT_NE(text.find("[@65535;A65535;D65535;"), std::string::npos);
}
