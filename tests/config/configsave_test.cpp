// Writing the configuration back and the one-line export.
#include <gtest/gtest.h>

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
    const size_t field = text.find("FILTERFIELD0="), cond = text.find("FILLTERCONDITION0="),
                 link = text.find("FILTERLINK0="), next = text.find("FILTERFIELD1=");
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
