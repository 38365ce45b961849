// The groups dialog on a manager with a real configuration file: new, rename (the naming
// rules), sections, delete, the protected first group and the two ways out.
#include <QComboBox>

#include "docmgr/dialogs/docgroupsdialog.h"
#include "tests/support/managerfixture.h"
#include "resources/resids.h"

class GroupsDialogTest : public ManagerTest {
protected:
    // A configuration with these groups (name and section) and the manager on it with
    // group `actual` (0-based) selected; the dialog on that manager.
    void Open(const std::vector<GroupSpec>& groups, int actual)
    {
        dialog.reset();  // a child of the manager: goes first
        host.reset();
        std::filesystem::remove(configPath);
        WriteConfig(groups, uint16_t(actual + 1));
        Start(false);
        AnswerBoxes(RET_NO);
        dialog = std::make_unique<DocGroupsDialog>(host.get(), &Settings(), Impl().SelectedGroupName());
    }
    QListWidget* List() const { return In<QListWidget>(*dialog, "groupList"); }
    QLineEdit* NameEdit() const { return In<QLineEdit>(*dialog, "nameEdit"); }
    QComboBox* SectionBox() const { return In<QComboBox>(*dialog, "sectionBox"); }
    QPushButton* Button(const char* name) const { return In<QPushButton>(*dialog, name); }

    std::vector<std::string> Sections() const
    {
        std::vector<std::string> sections;
        for (int i = 0; i < SectionBox()->count(); ++i)
            sections.push_back(SectionBox()->itemText(i).toStdString());
        return sections;
    }
    // Types into a field as the user does.
    static void Type(QLineEdit* edit, const QString& text)
    {
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void Rename(int row, const QString& name)
    {
        List()->setCurrentRow(row);
        Type(NameEdit(), name);
        dialog->ChangeHdl();
    }
    void OpenThree(int actual = 1) { Open({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, actual); }

    std::unique_ptr<DocGroupsDialog> dialog;
    const std::string standard = ResString(STR_FIRST_GROUP);
    const std::string stem = ResString(STR_NEW_GROUP_STEM);
};

TEST_F(GroupsDialogTest, OpensOnTheActualGroupRenamesMovesBetweenSectionsAndDeletes)
{
    Open({{standard, "General"}, {stem + "1", "Work"}, {stem + "2", "Work"}}, 1);
    EXPECT_EQ(Texts(List()), (std::vector<std::string>{standard, stem + "1", stem + "2"}));
    EXPECT_EQ(List()->currentRow(), 1);
    EXPECT_EQ(NameEdit()->text().toStdString(), stem + "1");
    EXPECT_EQ(SectionBox()->currentText(), "Work");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "Work"}));
    EXPECT_TRUE(Button("deleteButton")->isEnabled());

    List()->setCurrentRow(0);
    EXPECT_FALSE(Button("deleteButton")->isEnabled() || Button("changeButton")->isEnabled() || NameEdit()->isEnabled());
    dialog->DeleteHdl();  // refused for the protected group
    EXPECT_EQ(Settings().GroupCount(), 3);

    // The more button shows and hides the editing controls.
    EXPECT_TRUE(SectionBox()->isHidden());
    Button("moreButton")->click();
    EXPECT_FALSE(SectionBox()->isHidden());
    Button("moreButton")->click();
    EXPECT_TRUE(Button("newButton")->isHidden());

    // Renaming drops blanks and moves the group to the end.
    Open({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Work"}, {"Gamma", "Home"}}, 1);
    Rename(1, " New  Alpha ");
    EXPECT_EQ(NameEdit()->text(), "NewAlpha");
    EXPECT_EQ(Texts(List()), (std::vector<std::string>{standard, "Beta", "Gamma", "NewAlpha"}));
    EXPECT_EQ(Settings().Group(3).groupName + "|" + Settings().Group(3).section, "NewAlpha|Work");
    EXPECT_TRUE(dialog->IsMainGroupChanged());  // Alpha was the main dialog's group

    // Blanks only: the old name comes back; a taken name: the change button is off.
    List()->setCurrentRow(1);
    Type(NameEdit(), "   ");
    EXPECT_FALSE(Button("changeButton")->isEnabled());
    dialog->ChangeHdl();
    EXPECT_EQ(NameEdit()->text(), "Beta");
    Type(NameEdit(), "gam ma");  // another group's name, compared exactly
    EXPECT_TRUE(Button("changeButton")->isEnabled());
    Type(NameEdit(), "Gam ma");
    EXPECT_FALSE(Button("changeButton")->isEnabled());

    // Enter in the field applies the change and keeps the dialog open.
    dialog->show();
    Type(NameEdit(), "Delta");
    QTest::keyClick(NameEdit(), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Texts(List()).back(), "Delta");

    // Sections follow the groups moved between them.
    OpenThree(0);
    List()->setCurrentRow(2);
    Type(SectionBox()->lineEdit(), "Old Papers");
    Button("changeButton")->click();
    EXPECT_EQ(Settings().Group(2).section, "OldPapers");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "Work", "OldPapers"}));

    List()->setCurrentRow(1);
    SectionBox()->setCurrentIndex(0);
    emit SectionBox()->textActivated(SectionBox()->currentText());  // chosen from the list
    dialog->ChangeHdl();
    EXPECT_EQ(Settings().Group(1).section, "General");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "OldPapers"}));

    // Deleting selects the new last group and empties the list at the end.
    Open({{"Alpha", "Work"}, {"Beta", "Home"}}, 0);
    List()->setCurrentRow(1);
    Button("deleteButton")->click();
    EXPECT_EQ(Texts(List()), (std::vector<std::string>{"Alpha"}));
    EXPECT_EQ(List()->currentRow(), 0);
    EXPECT_FALSE(dialog->IsMainGroupChanged());

    Button("deleteButton")->click();
    EXPECT_TRUE(dialog->IsMainGroupChanged());
    EXPECT_EQ(Settings().GroupCount(), 0);
    EXPECT_FALSE(Button("okButton")->isEnabled() || In<QToolButton>(*dialog, "settingsButton")->isEnabled());
    EXPECT_TRUE(Sections().empty());
    EXPECT_EQ(Stored("GROUPS", "0"), "");  // the removal was written at once
}

TEST_F(GroupsDialogTest, CancelSwitchesOnlyWhenTheMainGroupWasTouchedTheMenuWorksOnTheSelectionNewAndOk)
{
    // Untouched main group: changes are saved, the actual group stays.
    OpenThree();
    Button("newButton")->click();
    Button("cancelButton")->click();
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_EQ(Settings().actualGroup, 2);
    EXPECT_EQ(Stored("GROUPS", "3"), stem + "1");

    // Main group renamed: no longer in the list, so cancel takes the selection.
    OpenThree();
    Rename(1, "Renamed");
    List()->setCurrentRow(1);
    dialog->reject();  // Escape
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(Working().groupName, "Beta");

    // Main group stored into while another is selected: it is still listed, not selected.
    OpenThree();
    Working().paths = "/new";
    dialog->SettingsHdl(ITEM_STORE);
    EXPECT_EQ(Settings().Group(1).paths, "/new");
    List()->setCurrentRow(2);
    Button("cancelButton")->click();
    EXPECT_EQ(dialog->result(), 0);

    // The settings menu works on the selected group; new takes the settings in force, OK the selection.
    OpenThree();
    // The sort dialog on Beta, confirmed: Beta changes, the main group is untouched.
    List()->setCurrentRow(2);
    OnNextModal([](QDialog& sort) {
        In<QListWidget>(sort, "columnList")->setCurrentRow(4);
        In<QPushButton>(sort, "okButton")->click();
    });
    dialog->SettingsHdl(ITEM_SORT);
    EXPECT_EQ(Settings().Group(2).sortColumnId, 4);
    EXPECT_FALSE(dialog->IsMainGroupChanged());

    // Cancelled on the main group: nothing is marked.
    List()->setCurrentRow(1);
    OnNextModal([](QDialog& columns) { In<QPushButton>(columns, "cancelButton")->click(); });
    dialog->SettingsHdl(ITEM_COLUMNS);
    EXPECT_FALSE(dialog->IsMainGroupChanged());

    Working().sortColumnId = 7;
    Button("newButton")->click();
    EXPECT_EQ(Texts(List()).back(), stem + "1");
    EXPECT_EQ(NameEdit()->text().toStdString(), stem + "1");
    EXPECT_EQ(Settings().Group(3).section, ResString(STR_DEFAULT_SECTION));
    EXPECT_EQ(Settings().Group(3).sortColumnId, 7);

    List()->setCurrentRow(2);
    Button("okButton")->click();
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(Settings().actualGroup, 3);
    EXPECT_EQ(Working().groupName, "Beta");
}
