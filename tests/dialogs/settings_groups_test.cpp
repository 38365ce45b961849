// The groups dialog on a manager with a real configuration file: new, rename, sections,
// delete, the protected first group and the two ways out.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "docmgr/dialogs/docgroupsdialog.h"
#include "docmgr/ui/docmsgbox.h"
#include "tests/dialogs/settings_fixture.h"
#include "tests/support/testhost.h"

namespace {

// The manager after its start, without its modal loop.
class StartedHost : public TestHost {
public:
    using TestHost::TestHost;
    using DocManager::Init;
};

class GroupsDialogTest : public ::testing::Test {
protected:
    GroupsDialogTest()
    {
        SetDocBoxAnswerer([](const QString&, bool) { return RET_NO; });
    }
    ~GroupsDialogTest() override { SetDocBoxAnswerer({}); }

    // Writes a configuration with the named groups (name, section) and starts a manager on
    // it with group `actual` (0-based) selected.
    void Start(std::vector<std::pair<std::string, std::string>> groups, int actual)
    {
        dialog.reset();  // a child of the manager: goes first
        host.reset();
        file.reset();
        std::string text = "[GENERAL]\nACTUALGROUP=" + std::to_string(actual + 1) + "\n[GROUPS]\n";
        for (size_t g = 0; g < groups.size(); ++g)
            text += std::to_string(g) + "=" + groups[g].first + "\n";
        for (size_t g = 0; g < groups.size(); ++g)
            text += "[" + std::to_string(g) + "]\nGROUPNAME=" + groups[g].first + "\nSECTION=" +
                    groups[g].second + "\n";
        testfs::WriteFile(dir.PathOf("settings.cfg"), text);
        dir.MakeDir("docs");
        file = std::make_unique<Config>(dir.PathOf("settings.cfg"));
        host = std::make_unique<StartedHost>(nullptr, file.get(), dir.PathOf("docs"), false);
        host->Init();
        config = host->GetSettings();
        dialog = std::make_unique<DocGroupsDialog>(host.get(), host->GetSettings(), host->GetSelectedGroupName());
    }

    template <class W>
    W* Child(const char* name) const
    {
        W* widget = dialog->findChild<W*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QListWidget* List() const { return Child<QListWidget>("groupList"); }
    QLineEdit* NameEdit() const { return Child<QLineEdit>("nameEdit"); }
    QComboBox* SectionBox() const { return Child<QComboBox>("sectionBox"); }
    QPushButton* Button(const char* name) const { return Child<QPushButton>(name); }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        for (uint16_t g = 0; g < config->GroupCount(); ++g)
            names.push_back(config->Group(g).groupName);
        return names;
    }
    std::vector<std::string> Listed() const
    {
        std::vector<std::string> names;
        for (int i = 0; i < List()->count(); ++i)
            names.push_back(List()->item(i)->text().toStdString());
        return names;
    }
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

    ResModule resources{Language::English};
    TempDir dir;
    std::unique_ptr<Config> file;
    std::unique_ptr<StartedHost> host;
    ImplDocConfig* config = nullptr;
    std::unique_ptr<DocGroupsDialog> dialog;
    const std::string standard = ResString(15717);
    const std::string stem = ResString(15719);
};

TEST_F(GroupsDialogTest, OpensOnTheActualGroupAndProtectsTheFirstGroup)
{
    Start({{standard, "General"}, {stem + "1", "Work"}, {stem + "2", "Work"}}, 1);
    EXPECT_EQ(Listed(), Names());
    EXPECT_EQ(List()->currentRow(), 1);
    EXPECT_EQ(NameEdit()->text().toStdString(), stem + "1");
    EXPECT_EQ(SectionBox()->currentText(), "Work");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "Work"}));
    for (const char* name : {"okButton", "changeButton", "deleteButton"})
        EXPECT_TRUE(Button(name)->isEnabled()) << name;

    List()->setCurrentRow(0);
    EXPECT_FALSE(Button("deleteButton")->isEnabled());
    EXPECT_FALSE(Button("changeButton")->isEnabled());
    EXPECT_FALSE(NameEdit()->isEnabled());
    EXPECT_FALSE(SectionBox()->isEnabled());
    EXPECT_TRUE(Button("okButton")->isEnabled());
    dialog->DeleteHdl();  // refused for the protected group
    EXPECT_EQ(config->GroupCount(), 3);
}

TEST_F(GroupsDialogTest, NewTakesTheFirstFreeNumberAndTheNewSection)
{
    Start({{standard, "General"}, {stem + "2", "Work"}, {stem + "1", "Work"}}, 0);
    config->WorkingGroup().sortColumnId = 7;
    Button("newButton")->click();
    EXPECT_EQ(Listed().back(), stem + "3");
    EXPECT_EQ(List()->currentRow(), 3);
    EXPECT_EQ(config->Group(3).groupName, stem + "3");
    EXPECT_EQ(config->Group(3).section, ResString(15716));
    EXPECT_EQ(config->Group(3).sortColumnId, 7);  // made from the settings in force
    EXPECT_EQ(NameEdit()->text().toStdString(), stem + "3");

    Rename(2, "Other");
    Button("newButton")->click();
    EXPECT_EQ(Listed().back(), stem + "1");
    EXPECT_EQ(Listed(), Names());
}

TEST_F(GroupsDialogTest, RenamingDropsBlanksAndKeepsListAndGroupsInStep)
{
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Work"}, {"Gamma", "Home"}}, 1);
    Rename(1, " New  Alpha ");
    EXPECT_EQ(NameEdit()->text(), "NewAlpha");
    EXPECT_EQ(Listed(), (std::vector<std::string>{standard, "Beta", "Gamma", "NewAlpha"}));
    EXPECT_EQ(Names(), Listed());
    EXPECT_EQ(List()->currentRow(), 3);
    EXPECT_EQ(config->Group(3).section, "Work");
    EXPECT_TRUE(dialog->IsMainGroupChanged());  // Alpha was the main dialog's group

    // Blanks only: the old name comes back; an existing name: nothing happens.
    List()->setCurrentRow(1);
    Type(NameEdit(), "   ");
    EXPECT_FALSE(Button("changeButton")->isEnabled());
    dialog->ChangeHdl();
    EXPECT_EQ(NameEdit()->text(), "Beta");
    Type(NameEdit(), "Gam ma");
    EXPECT_FALSE(Button("changeButton")->isEnabled());
    dialog->ChangeHdl();
    EXPECT_EQ(Names(), (std::vector<std::string>{standard, "Beta", "Gamma", "NewAlpha"}));
    Type(NameEdit(), "Be ta");
    EXPECT_TRUE(Button("changeButton")->isEnabled());  // its own name

    // Enter in the field applies the change and keeps the dialog open.
    dialog->show();
    Type(NameEdit(), "Delta");
    QTest::keyClick(NameEdit(), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Listed().back(), "Delta");
}

TEST_F(GroupsDialogTest, SectionsFollowTheGroupsMovedBetweenThem)
{
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 0);
    List()->setCurrentRow(2);
    Type(SectionBox()->lineEdit(), "Old Papers");
    Button("changeButton")->click();
    EXPECT_EQ(config->Group(2).section, "OldPapers");
    EXPECT_EQ(SectionBox()->currentText(), "OldPapers");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "Work", "OldPapers"}));

    List()->setCurrentRow(1);
    SectionBox()->setCurrentIndex(0);
    emit SectionBox()->textActivated(SectionBox()->currentText());  // chosen from the list
    dialog->ChangeHdl();
    EXPECT_EQ(config->Group(1).section, "General");
    EXPECT_EQ(Sections(), (std::vector<std::string>{"General", "OldPapers"}));
}

TEST_F(GroupsDialogTest, DeletingSelectsTheNewLastAndEmptiesTheListAtTheEnd)
{
    Start({{"Alpha", "Work"}, {"Beta", "Home"}}, 0);
    List()->setCurrentRow(1);
    Button("deleteButton")->click();
    EXPECT_EQ(Listed(), (std::vector<std::string>{"Alpha"}));
    EXPECT_EQ(List()->currentRow(), 0);
    EXPECT_EQ(Sections(), (std::vector<std::string>{"Work"}));
    EXPECT_FALSE(dialog->IsMainGroupChanged());

    Button("deleteButton")->click();
    EXPECT_TRUE(dialog->IsMainGroupChanged());
    EXPECT_EQ(List()->count(), 0);
    EXPECT_EQ(config->GroupCount(), 0);
    EXPECT_FALSE(Button("okButton")->isEnabled());
    EXPECT_FALSE(Child<QToolButton>("settingsButton")->isEnabled());
    EXPECT_FALSE(Button("deleteButton")->isEnabled());
    EXPECT_TRUE(NameEdit()->text().isEmpty());
    EXPECT_TRUE(NameEdit()->isEnabled());
    EXPECT_TRUE(SectionBox()->isEnabled());
    EXPECT_TRUE(Sections().empty());

    Config reread(dir.PathOf("settings.cfg"));  // the removal was written at once
    reread.SetGroup("GROUPS");
    EXPECT_EQ(reread.ReadKey("0"), "");
}

TEST_F(GroupsDialogTest, OkSavesAndMakesTheSelectedGroupActual)
{
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 1);
    Button("newButton")->click();
    List()->setCurrentRow(2);
    Button("okButton")->click();
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(config->actualGroup, 3);
    EXPECT_EQ(config->WorkingGroup().groupName, "Beta");
    Config reread(dir.PathOf("settings.cfg"));
    reread.SetGroup("GROUPS");
    EXPECT_EQ(reread.ReadKey("3"), stem + "1");
}

TEST_F(GroupsDialogTest, CancelSwitchesOnlyWhenTheMainGroupWasTouched)
{
    // Untouched main group: changes are saved, the actual group stays.
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 1);
    Button("newButton")->click();
    Button("cancelButton")->click();
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_EQ(config->actualGroup, 2);
    Config reread(dir.PathOf("settings.cfg"));
    reread.SetGroup("GROUPS");
    EXPECT_EQ(reread.ReadKey("3"), stem + "1");

    // Main group renamed: no longer in the list, so cancel takes the selection.
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 1);
    Rename(1, "Renamed");
    List()->setCurrentRow(1);
    dialog->reject();  // Escape
    EXPECT_EQ(dialog->result(), 1);
    EXPECT_EQ(config->actualGroup, 2);
    EXPECT_EQ(config->WorkingGroup().groupName, "Beta");

    // Main group stored into while another is selected: it is still listed, not selected.
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 1);
    config->WorkingGroup().paths = "/new";
    dialog->SettingsHdl(DocGroupsDialog::ITEM_STORE);
    EXPECT_EQ(config->Group(1).paths, "/new");
    EXPECT_EQ(config->Group(1).groupName, "Alpha");
    EXPECT_TRUE(dialog->IsMainGroupChanged());
    List()->setCurrentRow(2);
    Button("cancelButton")->click();
    EXPECT_EQ(dialog->result(), 0);
}

TEST_F(GroupsDialogTest, SettingsMenuOpensTheDialogsOnTheSelectedGroup)
{
    Start({{standard, "General"}, {"Alpha", "Work"}, {"Beta", "Home"}}, 1);
    auto* menu = Child<QToolButton>("settingsButton")->menu();
    ASSERT_NE(menu, nullptr);
    std::vector<unsigned short> items;
    for (QAction* action : menu->actions())
        if (!action->isSeparator())
            items.push_back(action->data().value<unsigned short>());
    EXPECT_EQ(items, (std::vector<unsigned short>{10, 11, 12, 13, 14}));

    // The sort dialog on Beta, confirmed: Beta changes, the main group is untouched.
    List()->setCurrentRow(2);
    QTimer::singleShot(0, [] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        modal->findChild<QListWidget*>("columnList")->setCurrentRow(4);
        modal->findChild<QPushButton*>("okButton")->click();
    });
    dialog->SettingsHdl(DocGroupsDialog::ITEM_SORT);
    EXPECT_EQ(config->Group(2).sortColumnId, 4);
    EXPECT_FALSE(dialog->IsMainGroupChanged());

    // Cancelled on the main group: nothing is marked.
    List()->setCurrentRow(1);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->findChild<QPushButton*>("cancelButton")->click(); });
    dialog->SettingsHdl(DocGroupsDialog::ITEM_COLUMNS);
    EXPECT_FALSE(dialog->IsMainGroupChanged());
}

TEST_F(GroupsDialogTest, MoreButtonShowsAndHidesTheEditingControls)
{
    Start({{standard, "General"}, {"Alpha", "Work"}}, 1);
    QPushButton* more = Button("moreButton");
    EXPECT_TRUE(more->isCheckable());
    EXPECT_FALSE(more->isChecked());
    for (const char* name : {"newButton", "changeButton", "deleteButton"})
        EXPECT_TRUE(Button(name)->isHidden()) << name;
    EXPECT_TRUE(NameEdit()->isHidden());
    more->click();
    for (const char* name : {"newButton", "changeButton", "deleteButton"})
        EXPECT_FALSE(Button(name)->isHidden()) << name;
    EXPECT_FALSE(SectionBox()->isHidden());
    more->click();
    EXPECT_TRUE(SectionBox()->isHidden());
}

}  // namespace
