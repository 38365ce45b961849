// The paths dialog: shown and hidden entries, the subdirectory marker, adding from the tree.
#include <QCheckBox>
#include <QPushButton>
#include <QTest>

#include "docmgr/config/pathrules.h"
#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/dialogs/docpathsdialog.h"
#include "tests/dialogs/settings_fixture.h"

namespace {

class PathsDialogTest : public SettingsTest {
protected:
    QPushButton* Button(const DocPathsDialog& dialog, const char* name) { return Child<QPushButton>(dialog, name); }
    QListWidget* List(const DocPathsDialog& dialog) { return Child<QListWidget>(dialog, "pathList"); }
    QCheckBox* Include(const DocPathsDialog& dialog) { return Child<QCheckBox>(dialog, "includeBox"); }
    void Ok(DocPathsDialog& dialog) { Button(dialog, "okButton")->click(); }
};

TEST_F(PathsDialogTest, HiddenEntriesAreKeptAfterTheShownOnesWithTheFirstHiddenFlag)
{
    Working().paths = "P1;P2;P3";
    Working().guis = "011";
    {
        DocPathsDialog dialog(nullptr, &config, WORKING_GROUP);
        EXPECT_EQ(Texts(*List(dialog)), (std::vector<std::string>{"P2", "P3"}));
        Ok(dialog);
        EXPECT_EQ(dialog.result(), 1);
    }
    EXPECT_EQ(Working().paths, "P2;P3;P1");
    EXPECT_EQ(Working().guis, "110");

    // Every hidden entry takes the first hidden flag; a missing flag counts as hidden.
    Working().paths = "A;B;C;D;E";
    Working().guis = "21x1";
    {
        DocPathsDialog dialog(nullptr, &config, WORKING_GROUP);
        EXPECT_EQ(Texts(*List(dialog)), (std::vector<std::string>{"B", "D"}));
        Ok(dialog);
    }
    EXPECT_EQ(Working().paths, "B;D;A;C;E");
    EXPECT_EQ(Working().guis, "11222");
}

TEST_F(PathsDialogTest, IncludeBoxFollowsAndTogglesTheEntrysMarker)
{
    Working().paths = "/data;/docs/**";
    Working().guis = "11";
    DocPathsDialog dialog(nullptr, &config, WORKING_GROUP);
    QListWidget* list = List(dialog);
    QCheckBox* include = Include(dialog);
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_TRUE(include->isEnabled());
    EXPECT_FALSE(include->isChecked());
    list->setCurrentRow(1);
    EXPECT_TRUE(include->isChecked());

    include->click();
    EXPECT_EQ(list->item(1)->text().toStdString(), "/docs");
    EXPECT_FALSE(include->isChecked());
    list->setCurrentRow(0);
    include->click();
    EXPECT_EQ(list->item(0)->text().toStdString(), "/data/**");
    EXPECT_EQ(list->currentRow(), 0);
    Ok(dialog);
    EXPECT_EQ(Working().paths, "/data/**;/docs");
    EXPECT_EQ(Working().guis, "11");
}

TEST_F(PathsDialogTest, AddingTakesTheTreesDirectoryOnce)
{
    dir.MakeDir("one");
    dir.MakeDir("two");
    Working().paths = WithSub(dir.PathOf("two"));
    Working().guis = "1";
    DocPathsDialog dialog(nullptr, &config, WORKING_GROUP);
    DocDirBox* tree = Child<DocDirBox>(dialog, "dirTree");
    QPushButton* add = Button(dialog, "addButton");
    ASSERT_EQ(tree, dialog.GetDirBox());

    tree->SelectDir(dir.PathOf("one"));
    EXPECT_TRUE(add->isEnabled());
    dialog.show();
    QTest::keyClick(tree, Qt::Key_Return);  // opens the entry; the dialog stays
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(tree->item(tree->GetSelectedPos())->text().trimmed().toStdString(), "+ one");
    add->click();
    EXPECT_EQ(Texts(*List(dialog)), (std::vector<std::string>{WithSub(dir.PathOf("two")), dir.PathOf("one")}));
    EXPECT_EQ(List(dialog)->currentRow(), 1);
    EXPECT_FALSE(Include(dialog)->isChecked());
    EXPECT_FALSE(add->isEnabled());

    // A listed directory, with or without its marker, cannot be added again.
    tree->setCurrentRow(tree->GetSelectedPos() + 1);
    EXPECT_EQ(tree->GetDir(tree->GetSelectedPos()), dir.PathOf("two"));
    EXPECT_FALSE(add->isEnabled());
    tree->setCurrentRow(tree->GetSelectedPos() - 2);
    EXPECT_EQ(tree->GetDir(tree->GetSelectedPos()), dir.Path());
    EXPECT_TRUE(add->isEnabled());
}

TEST_F(PathsDialogTest, RemovingSelectsTheNeighbourAndReenablesAdd)
{
    Working().paths = "P1;P2;P3";
    Working().guis = "111";
    DocPathsDialog dialog(nullptr, &config, WORKING_GROUP);
    QListWidget* list = List(dialog);
    QPushButton* add = Button(dialog, "addButton");
    QPushButton* remove = Button(dialog, "removeButton");
    QPushButton* removeAll = Button(dialog, "removeAllButton");

    list->setCurrentRow(2);
    add->setEnabled(false);
    remove->click();
    EXPECT_EQ(Texts(*list), (std::vector<std::string>{"P1", "P2"}));
    EXPECT_EQ(list->currentRow(), 1);
    EXPECT_TRUE(add->isEnabled());
    list->setCurrentRow(0);
    remove->click();
    EXPECT_EQ(list->currentRow(), 0);
    EXPECT_EQ(list->currentItem()->text().toStdString(), "P2");

    Include(dialog)->click();
    EXPECT_EQ(list->item(0)->text().toStdString(), "P2/**");
    EXPECT_TRUE(Include(dialog)->isChecked());
    add->setEnabled(false);
    removeAll->click();
    EXPECT_EQ(list->count(), 0);
    EXPECT_FALSE(remove->isEnabled());
    EXPECT_FALSE(removeAll->isEnabled());
    EXPECT_FALSE(Include(dialog)->isEnabled());
    EXPECT_FALSE(Include(dialog)->isChecked());
    EXPECT_TRUE(add->isEnabled());
    Ok(dialog);
    EXPECT_EQ(Working().paths, "");
    EXPECT_EQ(Working().guis, "");
}

TEST_F(PathsDialogTest, CancelKeepsTheGroupAndTheGroupNumberPicksTheGroup)
{
    Working().paths = "W";
    Working().guis = "1";
    config.Group(0).paths = "G1;G2";
    config.Group(0).guis = "10";
    {
        DocPathsDialog dialog(nullptr, &config, 0);
        EXPECT_EQ(Texts(*List(dialog)), (std::vector<std::string>{"G1"}));
        Button(dialog, "removeAllButton")->click();
        Button(dialog, "cancelButton")->click();
        EXPECT_EQ(dialog.result(), 0);
    }
    EXPECT_EQ(config.Group(0).paths, "G1;G2");
    {
        DocPathsDialog dialog(nullptr, &config, 0);
        Button(dialog, "removeAllButton")->click();
        Ok(dialog);
    }
    EXPECT_EQ(config.Group(0).paths, "G2");
    EXPECT_EQ(config.Group(0).guis, "0");
    EXPECT_EQ(Working().paths, "W");
}

}  // namespace
