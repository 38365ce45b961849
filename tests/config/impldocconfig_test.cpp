// The whole configuration: general settings, rights, the group list and its operations,
// the subdirectory marker and the exception list.
#include <gtest/gtest.h>

#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/config/pathrules.h"
#include "docmgr/tools/config.h"
#include "tests/config/configfixture.h"
#include "resources/resids.h"

using ManagerConfigTest = ConfigFileTest;

namespace {
// Sections "GROUPS" and 0..n-1 for groups named G0, G1, ...
std::string GroupsText(unsigned n)
{
    std::string groups = "[GROUPS]\n", sections;
    for (unsigned g = 0; g < n; ++g) {
        const std::string id = std::to_string(g), name = "G" + id;
        groups += id + "=" + name + "\n";
        sections += "[" + id + "]\nGROUPNAME=" + name + "\nSECTION=S" + id + "\nFILTERFILES=*." + id + "\n";
    }
    return groups + sections;
}
}  // namespace

TEST_F(ManagerConfigTest, EmptyFileMakesAndSavesAFirstGroup)
{
    WriteFile("");
    std::vector<std::string> messages;
    {
        Config config(Path());
        ImplDocConfig docConfig(&config, "*.odt", [&](const std::string& text) { messages.push_back(text); });
        EXPECT_EQ(docConfig.ElementCount(), 2u);
        EXPECT_FALSE(docConfig.singleView);
        EXPECT_EQ(docConfig.actualGroup, 1u);
        EXPECT_EQ(docConfig.access, ACCESS_FILECOPY | ACCESS_FILEDELETE | ACCESS_FILEPRINT | ACCESS_FILERENAME);
        EXPECT_EQ(docConfig.Group(0).section, ResString(STR_DEFAULT_SECTION));
        // The one-line export: header, working group, then the list.
        EXPECT_EQ(docConfig.Export(),
                  "@DocManager[2.1][F][1][2][" + docConfig.WorkingGroup().Export() + "}[" + docConfig.Group(0).Export() + "}!");
        docConfig.singleView = true;
        docConfig.actualGroup = 0;
        EXPECT_EQ(docConfig.Export().substr(0, 25), "@DocManager[2.1][T][0][2]");
    }
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], ResString(STR_NEW_CONFIG));

    Config saved(Path());
    saved.SetGroup("0");
    EXPECT_EQ(saved.ReadKey("FILTERFILES"), "*.odt");
    EXPECT_FALSE(saved.HasGroup("GENERAL"));
}

TEST_F(ManagerConfigTest, GeneralSectionRightsGroupRunAndTheStoredActualGroup)
{
    WriteFile("[GENERAL]\nVIEWMODE=single\nACTUALGROUP=2\nACCESS_FILEPRINT=off\n"
              "ACCESS_FILECOPY=NO\nACCESS_FILEDELETE=OFF \n" +
              GroupsText(2) + "[GROUPS]\n3=G3\n[3]\nGROUPNAME=G3\n");
    Config config(Path());
    bool informed = false;
    ImplDocConfig docConfig(&config, "*", [&](const std::string&) { informed = true; });
    EXPECT_FALSE(informed);
    EXPECT_TRUE(docConfig.singleView);
    // Only an exact "OFF" (after upper-casing) withholds a right.
    EXPECT_EQ(docConfig.access, ACCESS_FILECOPY | ACCESS_FILEDELETE | ACCESS_FILERENAME);
    EXPECT_EQ(docConfig.GroupCount(), 2u);  // "3" lies after a gap
    EXPECT_EQ(docConfig.actualGroup, 2u);
    EXPECT_EQ(docConfig.WorkingGroup().groupName, "G1");

    // The stored actual group: 0 or none keeps the default group, one out of range takes the first.
    const struct {
        const char* stored;
        uint16_t actual;
        const char* workingFiles;
    } cases[] = {{"0", 0, "*.pdf"}, {"2", 2, "*.1"}, {"9", 1, "*.0"}, {"", 0, "*.pdf"}};
    for (const auto& c : cases) {
        WriteFile(std::string("[GENERAL]\nACTUALGROUP=") + c.stored + "\n" + GroupsText(3));
        Config stored(Path());
        ImplDocConfig storedConfig(&stored, "*.pdf");
        EXPECT_EQ(storedConfig.actualGroup, c.actual) << c.stored;
        EXPECT_EQ(storedConfig.WorkingGroup().filterFiles, c.workingFiles) << c.stored;
    }
}

TEST_F(ManagerConfigTest, GroupListOperationsTheSubdirectoryMarkerAndTheExceptionList)
{
    WriteFile(GroupsText(3));
    Config config(Path());
    ImplDocConfig docConfig(&config, "*");

    docConfig.WorkingGroup().filterTitle = "draft";
    docConfig.WorkingGroup().sortColumnId = 4;
    DocGroupConfig expected = docConfig.WorkingGroup();
    expected.groupName = "G1";
    expected.section = "S1";
    docConfig.SetGroupByExample(1);
    docConfig.SetCurGroup(1);
    EXPECT_EQ(docConfig.actualGroup, 2u);
    EXPECT_EQ(docConfig.WorkingGroup().Export(), expected.Export());

    docConfig.SetCurGroup(std::string("g2"));  // names match case-sensitively
    EXPECT_EQ(docConfig.actualGroup, 2u);
    docConfig.SetCurGroup(std::string("G2"));
    EXPECT_EQ(docConfig.actualGroup, 3u);

    docConfig.MoveGroup(0, 2);
    EXPECT_EQ(docConfig.Group(0).groupName, "G1");
    EXPECT_EQ(docConfig.Group(2).groupName, "G0");

    docConfig.InsertGroup(1);
    EXPECT_EQ(docConfig.Group(1).groupName, "");
    EXPECT_EQ(docConfig.Group(1).filterFiles, "*.2");  // the look of the working group

    // 65535 addresses the working group's place: the new group pushes it to element 1.
    docConfig.InsertGroup(WORKING_GROUP);
    EXPECT_EQ(docConfig.ElementCount(), 6u);
    EXPECT_EQ(docConfig.WorkingGroup().groupName, "");
    EXPECT_EQ(docConfig.Group(0).groupName, "G2");

    // The marker is one of the module's texts.
    EXPECT_TRUE(TestSub("/**"));
    EXPECT_EQ(WoutSub("/**"), "");
    EXPECT_EQ(WithSub(""), "/**");
    for (const std::string p : {"/home/a", "/home/a/", "/home/*", "C:\\Docs", "/x/**/y"}) {
        EXPECT_FALSE(TestSub(p)) << p;
        EXPECT_EQ(WithSub(p), p + "/**");
        EXPECT_EQ(WithSub(WithSub(p)), WithSub(p));
        EXPECT_EQ(WoutSub(WithSub(p)), p);
        EXPECT_EQ(WoutSub(p), p);
    }

    ImplDocConfig bare(nullptr, "*");
    EXPECT_FALSE(bare.IsExceptionPath("/tmp"));
    bare.SetExceptionPaths("/srv/Archiv;/mnt/Übersicht");
    EXPECT_EQ(bare.GetExceptionPaths(), "/SRV/ARCHIV;/MNT/ÜBERSICHT");
    EXPECT_EQ(bare.GetExceptionCount(), 2u);
    EXPECT_TRUE(bare.IsExceptionPath("/srv/archiv") && bare.IsExceptionPath("/mnt/übersicht"));
    EXPECT_FALSE(bare.IsExceptionPath("/srv/archiv/2020"));
    EXPECT_TRUE(bare.IsExceptionPath(""));
}
