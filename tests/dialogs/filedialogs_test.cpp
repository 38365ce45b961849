// The copy, new-folder and rename dialogs on documents selected in a live manager: what
// each says, what it refuses, and one copy and one move through the dialog.
#include <cerrno>
#include <cstring>

#include "docmgr/dialogs/doccopydialog.h"
#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/dialogs/docfolderdialog.h"
#include "docmgr/dialogs/docrenamedialog.h"
#include "tests/support/managerfixture.h"
#include "resources/resids.h"

class FileDialogTest : public ManagerTest {
protected:
    // The manager on the documents directory with the files `names` selected.
    void StartSelected(const std::set<std::string>& names)
    {
        WriteDefaultConfig();
        Start(false);
        ASSERT_EQ(Select(names), int(names.size()));
        AnswerBoxes(RET_YES);
    }
    static DocDirBox* Tree(DocCopyDialog& dialog) { return In<DocDirBox>(dialog, "directoryTree"); }
    static std::string ChosenDir(DocCopyDialog& dialog) { return Tree(dialog)->GetDir(Tree(dialog)->GetSelectedPos()); }
    static void Choose(DocCopyDialog& dialog, const std::string& target)
    {
        Tree(dialog)->ReadDirs();
        Tree(dialog)->SelectDir(target);
    }

    std::string dst = dir.MakeDir("dst");
};

TEST_F(FileDialogTest, EnterCopiesTheSelectedDocumentsIntoANewFolder)
{
    for (const char* name : {"a.odt", "b.odt", "c.odt"})
        dir.MakeFile(std::string("docs/") + name, name);
    StartSelected({"a.odt", "c.odt"});
    DocCopyDialog dialog(host.get(), host->SelectedDocs());
    EXPECT_EQ(ChosenDir(dialog), docs) << "starts in the documents' folder";
    Choose(dialog, dst);
    OnNextModal([](QDialog& folder) {  // made below the chosen folder, and chosen
        In<QLineEdit>(folder, "nameEdit")->setText("2024/Letters");
        In<QPushButton>(folder, "okButton")->click();
    });
    In<QPushButton>(dialog, "folderButton")->click();
    EXPECT_EQ(ChosenDir(dialog), dst + "/2024/Letters");
    dialog.show();
    QTest::keyClick(Tree(dialog), Qt::Key_Return);  // Enter on the chosen folder confirms
    EXPECT_EQ(dialog.result(), 1);
    EXPECT_EQ(dialog.GetDoneCount(), 2);
    EXPECT_EQ(dir.Read("dst/2024/Letters/a.odt"), "a.odt");
    EXPECT_FALSE(dir.Exists("dst/2024/Letters/b.odt"));
    EXPECT_TRUE(dir.Exists("docs/a.odt"));
}

TEST_F(FileDialogTest, MoveLeavesADocumentWhoseTargetExistsAndSaysSo)
{
    dir.MakeFile("docs/a.odt", "mine a");
    dir.MakeFile("docs/b.odt", "mine b");
    dir.MakeFile("dst/b.odt", "theirs");
    StartSelected({"a.odt", "b.odt"});
    DocCopyDialog dialog(host.get(), host->SelectedDocs());
    Choose(dialog, dst);
    In<QCheckBox>(dialog, "moveBox")->setChecked(true);
    In<QPushButton>(dialog, "okButton")->click();
    EXPECT_EQ(dialog.GetDoneCount(), 1);
    EXPECT_FALSE(dir.Exists("docs/a.odt"));
    EXPECT_EQ(dir.Read("dst/a.odt"), "mine a");
    EXPECT_EQ(dir.Read("docs/b.odt"), "mine b");
    EXPECT_EQ(dir.Read("dst/b.odt"), "theirs");
    // No guess at the cause: the system's reason.
    EXPECT_EQ(infos, std::vector<std::string>{ResString(STR_MOVE_FAILED) + "b.odt could not be moved."});
    EXPECT_EQ(AnsweredDocBox().detail.toStdString(), std::strerror(EEXIST));
}

TEST_F(FileDialogTest, RenameRefusesTakenNamesAndSeparatorsTheFolderDialogRefusesANameLeavingItsBase)
{
    dir.MakeFile("docs/other.odt", "theirs");
    dir.MakeDir("docs/sub");
    const std::string report = dir.MakeFile("docs/report.odt", "mine");
    StartSelected({"report.odt"});
    const std::string failed = ResString(STR_RENAME_FAILED) + "report.odt" + ResString(STR_RENAME_FAILED_END);
    // The new name, the renames done, the system's reason given (0: no message), and where
    // the document is afterwards.
    const struct {
        const char* newName;
        unsigned count;
        int error;
        const char* result;
    } rows[] = {
        {"report.odt", 0, 0, "docs/report.odt"},  // the same name changes nothing
        {"other.odt", 0, EEXIST, "docs/report.odt"},     {"sub/report.odt", 0, EINVAL, "docs/report.odt"},
        {"../report.odt", 0, EINVAL, "docs/report.odt"}, {"..", 0, EINVAL, "docs/report.odt"},
        {"Report.odt", 1, 0, "docs/Report.odt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.newName);
        infos.clear();
        DocRenameDialog dialog(host.get(), report);
        EXPECT_EQ(In<QLineEdit>(dialog, "oldNameEdit")->text(), "report.odt");
        In<QLineEdit>(dialog, "newNameEdit")->setText(row.newName);
        In<QPushButton>(dialog, "okButton")->click();
        EXPECT_EQ(dialog.result(), 1);
        EXPECT_EQ(dialog.GetRenameCount(), row.count);
        EXPECT_EQ(infos, row.error ? std::vector<std::string>{failed} : std::vector<std::string>{});
        if (row.error) {
            EXPECT_EQ(AnsweredDocBox().detail.toStdString(), std::strerror(row.error));
        }
        EXPECT_EQ(dir.Read(row.result), "mine");
    }
    EXPECT_EQ(dir.Read("docs/other.odt"), "theirs");
    EXPECT_FALSE(dir.Exists("docs/sub/report.odt") || dir.Exists("report.odt"));

    DocRenameDialog cleared(host.get(), report);
    In<QLineEdit>(cleared, "newNameEdit")->clear();
    EXPECT_FALSE(In<QPushButton>(cleared, "okButton")->isEnabled());

    // The folder dialog needs a name and refuses one leaving its base.
    DocFolderDialog dialog(nullptr, dst);
    EXPECT_EQ(dialog.windowTitle().toStdString(), ResText(ResKind::Dialog, DLG_NEW_FOLDER) + " [" + dst + "]");
    EXPECT_FALSE(In<QPushButton>(dialog, "okButton")->isEnabled());
    In<QLineEdit>(dialog, "nameEdit")->setText("x");
    EXPECT_TRUE(In<QPushButton>(dialog, "okButton")->isEnabled());

    dir.MakeFile("dst/notes", "keep");
    dir.MakeDir("outside");  // exists, yet the copy dialog must not be led there
    for (const std::string& refused : {std::string("../outside"), dir.PathOf("outside"), std::string("notes")}) {
        SCOPED_TRACE(refused);
        infos.clear();
        DocFolderDialog folder(nullptr, dst);
        In<QLineEdit>(folder, "nameEdit")->setText(QString::fromStdString(refused));
        In<QPushButton>(folder, "okButton")->click();
        EXPECT_EQ(infos, std::vector<std::string>{ResString(STR_FOLDER_FAILED) + dst + refused + ResString(STR_FOLDER_FAILED_END)});
        EXPECT_TRUE(folder.GetFolder().empty());
    }
    EXPECT_EQ(dir.Read("dst/notes"), "keep");
}
