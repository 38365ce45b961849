// Damaged configuration files: every value falls back, nothing crashes.
#include <gtest/gtest.h>

#include <random>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"
#include "tests/config/configfixture.h"

using GarbageTest = ConfigFileTest;

TEST_F(GarbageTest, NonsenseValuesFallBack)
{
    WriteFile("[GENERAL]\nVIEWMODE=\xff\xfe\nACTUALGROUP=-3\nACCESS_FILECOPY=\n"
              "[GROUPS]\n0=\x01\n1=[2]\n"
              "[0]\nFILTERFIELD0=abc\nFILLTERCONDITION0=-99999999999999999999\n"
              "FILTERDATE0=99999999999999999999999\nSORTCOLUMNID=70000\n"
              "COLUMNID0=12x\nCOLUMNWIDTH0=-5\nFROZENCOLUMNS= 4\nFILTERLINK1=--1\n"
              "[1]\nGROUPNAME\n=novalue\nSECTION==\n");
    Config config(Path());
    ImplDocConfig docConfig(&config, "*");
    EXPECT_FALSE(docConfig.singleView);
    EXPECT_EQ(docConfig.actualGroup, 0u);
    EXPECT_EQ(docConfig.GroupCount(), 2u);
    const DocGroupConfig& g = docConfig.Group(0);
    EXPECT_EQ(g.filterField[0], 1u);
    EXPECT_EQ(g.sortColumnId, uint16_t(70000));
    EXPECT_EQ(g.columnId[0], 12u);
    EXPECT_EQ(g.columnWidth[0], 0u);
    EXPECT_EQ(g.frozenColumns, 0u);
    EXPECT_EQ(docConfig.Group(1).section, "=");
    EXPECT_FALSE(docConfig.Export().empty());
}

TEST_F(GarbageTest, BinaryFilesAndUnwritablePlaces)
{
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        std::string bytes(size_t(random() % 4000), '\0');
        for (char& c : bytes)
            c = char(random() % 4 == 0 ? "[]=\n0GROUPS"[random() % 11] : random());
        WriteFile("[GROUPS]\n0=a\n" + bytes);
        Config config(Path());
        ImplDocConfig docConfig(&config, "*");
        ASSERT_GE(docConfig.GroupCount(), 1u);
        docConfig.SaveConfig();
        EXPECT_EQ(docConfig.Export().substr(0, 16), "@DocManager[2.1]");
    }

    // A file that cannot be written: the first group is still made and nothing is reported.
    Config config(Path() + "/missing/dir/docmgr.cfg");
    ImplDocConfig docConfig(&config, "*");
    EXPECT_EQ(docConfig.GroupCount(), 1u);
    docConfig.SaveGeneralSection();

    ImplDocConfig detached(nullptr, "*.pdf");
    EXPECT_EQ(detached.WorkingGroup().filterFiles, "*.pdf");
}
