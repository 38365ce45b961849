// Choosing sections and groups, and the question whether changed settings are kept.

#include "tests/support/managerfixture.h"

class SectionsTest : public ManagerTest {
protected:
    // Three groups in two sections, each showing its own directory.
    void SetUp() override
    {
        for (const char* sub : {"a", "b", "c"})
            dir.MakeFile(std::string("docs/") + sub + "/" + sub + "1.odt", "x");
        WriteConfig({{"Alpha", "Work", docs + "/a", "1"}, {"Beta", "Home", docs + "/b", "1"}, {"Gamma", "Work", docs + "/c", "1"}},
                    3);  // Gamma is current
    }
    QListWidget* Sections() { return Child<QListWidget>("sectionList"); }
    QListWidget* Groups() { return Child<QListWidget>("groupList"); }

    // Confirms the filter dialog with `title` as the title pattern.
    void ChangeFilterTitle(const QString& title)
    {
        OnNextModal([title](QDialog& dialog) {
            dialog.findChild<QLineEdit*>("titleEdit")->setText(title);
            dialog.findChild<QPushButton*>("okButton")->click();
        });
        Impl().FilterHdl();
    }
};

TEST_F(SectionsTest, SectionsAppearOnceAndChoosingOneMakesItsFirstGroupCurrent)
{
    Start();
    EXPECT_EQ(Texts(Sections()), (std::vector<std::string>{"Work", "Home"}));
    EXPECT_EQ(Sections()->currentItem()->text(), "Work");
    EXPECT_EQ(Texts(Groups()), (std::vector<std::string>{"Alpha", "Gamma"}));
    EXPECT_EQ(Impl().SelectedGroupName(), "Gamma");
    EXPECT_EQ(RowNames(), std::vector<std::string>{"c1.odt"});

    Sections()->setCurrentRow(1);  // "Home", as a click does
    EXPECT_EQ(Texts(Groups()), std::vector<std::string>{"Beta"});
    EXPECT_EQ(Settings().actualGroup, 2);
    EXPECT_EQ(RowNames(), std::vector<std::string>{"b1.odt"});
    EXPECT_EQ(Impl().pathLineText, "1 documents in " + docs + "/b");

    Sections()->setCurrentRow(0);
    Groups()->setCurrentRow(0);  // "Alpha"
    EXPECT_EQ(Settings().actualGroup, 1);
    EXPECT_EQ(RowNames(), std::vector<std::string>{"a1.odt"});
    EXPECT_TRUE(queries.empty());
}

TEST_F(SectionsTest, KeptChangesGoIntoTheCurrentGroupRefusedOnesAreDropped)
{
    Start();
    AnswerBoxes(RET_YES);
    ChangeFilterTitle("*Plan*");
    Groups()->setCurrentRow(0);  // away from Gamma: the question comes
    ASSERT_EQ(queries.size(), 1u);
    EXPECT_EQ(queries[0], "The settings of the group \"Gamma\" have been changed. Keep the changes?");
    EXPECT_FALSE(Impl().changed);
    EXPECT_EQ(Settings().Group(2).filterTitle, "*Plan*");
    EXPECT_EQ(Stored("2", "FILTERTITLE"), "*Plan*");
    EXPECT_EQ(Working().groupName, "Alpha");

    // Refused: dropped, and the first group, not the current one, becomes the settings in force.
    Groups()->setCurrentRow(1);
    AnswerBoxes(RET_NO);
    ChangeFilterTitle("*Other*");
    Impl().QuerySave();
    EXPECT_EQ(Settings().Group(2).filterTitle, "*Plan*");
    EXPECT_EQ(Settings().actualGroup, 1);
    EXPECT_EQ(Working().filterTitle, "");
}
