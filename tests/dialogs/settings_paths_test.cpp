// The paths dialog: shown and hidden entries, the subdirectory marker, adding from the tree.

#include "docmgr/config/pathrules.h"
#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/dialogs/docpathsdialog.h"
#include "docmgr/dialogs/pathentries.h"
#include "tests/support/managerfixture.h"

TEST(PathEntries, HiddenEntriesGoAfterTheShownOnesWithTheFirstHiddenFlag)
{
    using Strings = std::vector<std::string>;
    const struct {
        const char *paths, *guis;
        Strings shown;
        const char *storedPaths, *storedGuis;
    } table[] = {
        {"A;B;C;D;E", "21x1", {"B", "D"}, "B;D;A;C;E", "11222"},  // a missing flag is hidden
        {"A;B", "", {}, "A;B", "00"},
    };
    for (const auto& row : table) {
        SCOPED_TRACE(std::string(row.paths) + " / " + row.guis);
        const pathentries::Entries entries = pathentries::Split(row.paths, row.guis);
        EXPECT_EQ(entries.shown, row.shown);
        const pathentries::Stored stored = pathentries::Join(entries);
        EXPECT_EQ(stored.paths, row.storedPaths);
        EXPECT_EQ(stored.guis, row.storedGuis);
    }
}

class PathsDialogTest : public ManagerTest {
protected:
    void SetUp() override { StartWith({}); }
    static QPushButton* Button(const DocPathsDialog& dialog, const char* name) { return In<QPushButton>(dialog, name); }
    static QListWidget* List(const DocPathsDialog& dialog) { return In<QListWidget>(dialog, "pathList"); }
    static QCheckBox* Include(const DocPathsDialog& dialog) { return In<QCheckBox>(dialog, "includeBox"); }
};

TEST_F(PathsDialogTest, IncludeBoxTogglesTheMarkerOkStoresTheListBeforeTheHiddenEntriesAddingTakesADirectoryOnce)
{
    Working().paths = "/data;/docs/**";
    Working().guis = "11";
    DocPathsDialog dialog(nullptr, &Settings(), WORKING_GROUP);
    QListWidget* list = List(dialog);
    QCheckBox* include = Include(dialog);
    EXPECT_FALSE(include->isChecked());
    list->setCurrentRow(1);
    EXPECT_TRUE(include->isChecked());
    include->click();
    EXPECT_EQ(list->item(1)->text().toStdString(), "/docs");
    EXPECT_FALSE(include->isChecked());
    list->setCurrentRow(0);
    include->click();
    EXPECT_EQ(list->item(0)->text().toStdString(), "/data/**");
    Button(dialog, "okButton")->click();
    EXPECT_EQ(Working().paths, "/data/**;/docs");

    // Another group: its hidden entries are not listed; OK stores them after the listed ones.
    Settings().Group(0).paths = "G1;G2;G3";
    Settings().Group(0).guis = "101";
    DocPathsDialog cancelled(nullptr, &Settings(), 0);
    EXPECT_EQ(Texts(List(cancelled)), (std::vector<std::string>{"G1", "G3"}));
    Button(cancelled, "removeAllButton")->click();
    Button(cancelled, "cancelButton")->click();
    EXPECT_EQ(Settings().Group(0).paths, "G1;G2;G3");
    DocPathsDialog stored(nullptr, &Settings(), 0);
    List(stored)->setCurrentRow(0);
    Button(stored, "removeButton")->click();
    Button(stored, "okButton")->click();
    EXPECT_EQ(Settings().Group(0).paths + "|" + Settings().Group(0).guis, "G3;G2|10");
    EXPECT_EQ(Working().paths, "/data/**;/docs");

    // Adding takes the tree's directory once.
    dir.MakeDir("one");
    dir.MakeDir("two");
    Working().paths = WithSub(dir.PathOf("two"));
    Working().guis = "1";
    DocPathsDialog adding(nullptr, &Settings(), WORKING_GROUP);
    DocDirBox* tree = adding.GetDirBox();
    QPushButton* add = Button(adding, "addButton");

    tree->SelectDir(dir.PathOf("one"));
    EXPECT_TRUE(add->isEnabled());
    adding.show();
    QTest::keyClick(tree, Qt::Key_Return);  // opens the entry; the dialog stays
    EXPECT_TRUE(adding.isVisible());
    add->click();
    EXPECT_EQ(Texts(List(adding)), (std::vector<std::string>{WithSub(dir.PathOf("two")), dir.PathOf("one")}));
    EXPECT_FALSE(add->isEnabled());

    // A listed directory, with or without its marker, cannot be added again.
    tree->SelectDir(dir.PathOf("two"));
    EXPECT_FALSE(add->isEnabled());
    tree->SelectDir(dir.Path());
    EXPECT_TRUE(add->isEnabled());
}
