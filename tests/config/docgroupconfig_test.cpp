// One group: reading missing keys, a new group's look and the export line.
#include <gtest/gtest.h>

#include <tuple>

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
    DocGroupConfig empty;
    empty.groupName = "Only";
    empty.filterFiles.clear();
    empty.filterField = {1, 1, 1};
    empty.columnId = empty.columnWidth = {};
    empty.frozenColumns = empty.sortColumnId = 0;
    empty.infoLabel = {};
    empty.sortAscending = false;
    empty.filterDate = only.filterDate;  // today and now are not what this test is about
    empty.filterTime = only.filterTime;
    EXPECT_EQ(only.Export(), empty.Export());

    const DocGroupConfig lower(&config, 1), upper(&config, 2);
    EXPECT_EQ(std::tuple(lower.filterField[0], lower.filterField[1], lower.filterCondition[2]),
              std::tuple(1, 65535, -7));
    // Flags are case-sensitive; the condition key is only known with its double L.
    EXPECT_FALSE(lower.filterSensitive || lower.sortAscending);
    EXPECT_TRUE(upper.filterSensitive && upper.sortAscending);
    EXPECT_EQ(upper.filterCondition[0], 0);
}

TEST(GroupConfig, NewGroupTakesTheLookButNoIdentityFiltersOrPathsAndExportsItsDocumentedPieces)
{
    DocGroupConfig source;
    source.filterFiles = "*.odt";
    source.filterField = {3, 4, 5};
    source.sortColumnId = 7;
    source.infoLabel[2] = "Client";
    DocGroupConfig look;
    look = source;  // assignment copies every field
    source.groupName = source.section = source.paths = source.guis = "x";
    source.filterTitle = source.filterTopic = source.filterAuthor = source.filterKeywords = "x";
    source.filterValue = {"a", "b", "c"};
    EXPECT_EQ(DocGroupConfig::LookOf(source).Export(), look.Export());

    // The export line of a default group, from its documented pieces.
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
