// Writing the configuration back; one group: reading missing keys, a new group's look
// and its export line.
#include <gtest/gtest.h>

#include <tuple>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"
#include "tests/config/configfixture.h"

using SaveTest = ConfigFileTest;

namespace {
void FillGroup(DocGroupConfig& group, unsigned g)
{
    const std::string id = std::to_string(g);
    group.groupName = "Name " + id;
    group.section = "Section;" + id;
    group.filterTitle = " title = " + id;
    group.filterFiles = "*.od?;*.pdf";
    group.filterAuthor = "author" + id;
    group.filterSensitive = g % 2 == 1;
    for (unsigned i = 0; i < FILTER_ROWS; ++i) {
        group.filterField[i] = uint16_t(2 + i + g);
        group.filterCondition[i] = -int32_t(i + g);
        group.filterValue[i] = "v" + id + std::to_string(i);
        group.filterDate[i] = 20200101 + g * 100 + i;
        group.filterTime[i] = 10203040 + i;
    }
    group.filterLink = {int32_t(g), 1};
    group.sortColumnId = uint16_t(5 + g);
    group.sortAscending = g != 1;
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i) {
        group.columnId[i] = uint16_t(20 - i);
        group.columnWidth[i] = uint16_t(100 * g + i);
    }
    group.frozenColumns = uint16_t(g);
    group.infoLabel = {"I0", "I1 " + id, "", "I3"};
    group.paths = "/home/a/**;/srv/" + id;
    group.guis = "10";
}
}  // namespace

TEST_F(SaveTest, RoundTripKeepsGroupsButSavesTheDateAsTime)
{
    WriteFile(std::string("[GENERAL]\nVIEWMODE=MULTI\n") + "[GROUPS]\n0=x\n[0]\nGROUPNAME=x\n");
    {
        Config config(Path());
        ImplDocConfig docConfig(&config, "*");
        docConfig.InsertGroup(1);
        docConfig.InsertGroup(2);
        for (uint16_t g = 0; g < 3; ++g)
            FillGroup(docConfig.Group(g), g);
        docConfig.SaveConfig();
    }
    const std::string text = FileText();
    const size_t field = text.find("FILTERFIELD0="), cond = text.find("FILLTERCONDITION0="), link = text.find("FILTERLINK0="),
                 next = text.find("FILTERFIELD1=");
    EXPECT_TRUE(field < cond && cond < link && link < next);
    EXPECT_EQ(text.find("FILTERLINK2="), std::string::npos);

    Config config(Path());
    ImplDocConfig docConfig(&config, "*");
    ASSERT_EQ(docConfig.GroupCount(), 3u);
    for (uint16_t g = 0; g < 3; ++g) {
        DocGroupConfig expected;
        FillGroup(expected, g);
        expected.filterTime = expected.filterDate;
        EXPECT_EQ(docConfig.Group(g).Export(), expected.Export()) << g;
    }
}

TEST_F(SaveTest, RemovingAGroupRenumbersTheSections)
{
    WriteFile("[GROUPS]\n0=A\n1=B\n2=C\n[0]\nGROUPNAME=A\n[1]\nGROUPNAME=B\n"
              "[2]\nGROUPNAME=C\n[GENERAL]\nACTUALGROUP=3\n");
    {
        Config config(Path());
        ImplDocConfig docConfig(&config, "*");
        docConfig.RemoveGroup(1);
        EXPECT_EQ(docConfig.actualGroup, 3u);  // left to the caller
        docConfig.singleView = true;
        docConfig.SaveGeneralSection();
        docConfig.Group(1).columnWidth[0] = 77;
        docConfig.SaveGroupColumnWidth(1);
        docConfig.WorkingGroup().columnWidth[19] = 55;
        docConfig.SaveGroupColumnWidth(WORKING_GROUP);
    }
    Config saved(Path());
    EXPECT_TRUE(saved.HasGroup("0") && saved.HasGroup("1"));
    EXPECT_FALSE(saved.HasGroup("2"));
    saved.SetGroup("GROUPS");
    EXPECT_EQ(saved.ReadKey("0") + saved.ReadKey("1") + saved.ReadKey("2", "-"), "AC-");
    saved.SetGroup("1");
    EXPECT_EQ(saved.ReadKey("GROUPNAME"), "C");
    EXPECT_EQ(saved.ReadKey("COLUMNWIDTH0"), "77");
    saved.SetGroup("65535");
    EXPECT_EQ(saved.ReadKey("COLUMNWIDTH19"), "55");
    saved.SetGroup("GENERAL");
    EXPECT_EQ(saved.ReadKey("VIEWMODE"), "SINGLE");
    EXPECT_EQ(saved.ReadKey("ACTUALGROUP"), "3");
}

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
    EXPECT_EQ(std::tuple(lower.filterField[0], lower.filterField[1], lower.filterCondition[2]), std::tuple(1, 65535, -7));
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
    EXPECT_EQ(group.Export(), ";;[][][][][*][F]" + rows + "65535;T;" + columns + "3;" + "[Info 0;Info 1;Info 2;Info 3;][][]");

    // A column id travels as its low byte plus 65, wrapping at 256; names are not escaped.
    group.groupName = "a;b]";
    group.columnId[0] = 0x1FF;
    group.columnId[1] = 0;
    const std::string text = group.Export();
    EXPECT_EQ(text.substr(0, 5), "a;b];");
    EXPECT_NE(text.find("[@65535;A65535;D65535;"), std::string::npos);
}
