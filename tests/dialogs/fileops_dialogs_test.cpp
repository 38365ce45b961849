// The copy and rename dialogs on documents selected in a live manager, with real files.
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <vector>

#include "docmgr/dialogs/doccopydialog.h"
#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/dialogs/docfolderdialog.h"
#include "docmgr/dialogs/docrenamedialog.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/managerloop.h"
#include "tests/support/tempdir.h"
#include "tests/support/testhost.h"

namespace {
using managerloop::RunInManager;
using managerloop::SelectFiles;

class FileDialogTest : public ::testing::Test {
protected:
    FileDialogTest()
    {
        SetDocBoxAnswerer([this](const QString& text, bool) {
            messages.push_back(text.toStdString());
            return RET_YES;
        });
    }
    ~FileDialogTest() override { SetDocBoxAnswerer({}); }

    // Runs `body` in the manager with the files `names` of src selected.
    void WithSelected(const std::set<std::string>& names, const std::function<void()>& body)
    {
        RunInManager(host, [&] {
            messages.clear();  // what the manager said on its first run
            ASSERT_EQ(SelectFiles(*host.GetBrowser(), names), int(names.size()));
            body();
        });
    }

    ResModule resources{Language::English};
    TempDir dir;
    std::string src = dir.MakeDir("src");
    std::string dst = dir.MakeDir("dst");
    Config config{dir.PathOf("manager.cfg")};
    TestHost host{nullptr, &config, src, false};
    std::vector<std::string> messages;
};

// The copy dialog with `target` chosen in its tree.
DocDirBox* ChooseTarget(DocCopyDialog& dialog, const std::string& target)
{
    auto* tree = dialog.findChild<DocDirBox*>("directoryTree");
    tree->ReadDirs();
    tree->SelectDir(target);
    return tree;
}

std::string ChosenDir(DocCopyDialog& dialog)
{
    auto* tree = dialog.findChild<DocDirBox*>("directoryTree");
    return tree->GetDir(tree->GetSelectedPos());
}

TEST_F(FileDialogTest, CopyKeepsTheSourcesAndCountsWhatItCopied)
{
    for (const char* name : {"a.odt", "b.odt", "c.odt"})
        dir.MakeFile(std::string("src/") + name, name);
    WithSelected({"a.odt", "c.odt"}, [&] {
        DocCopyDialog dialog(&host, host.SelectedDocs());
        EXPECT_EQ(ChosenDir(dialog), src) << "starts in the documents' folder";
        DocDirBox* tree = ChooseTarget(dialog, dst);
        ASSERT_EQ(ChosenDir(dialog), dst);
        dialog.show();
        QTest::keyClick(tree, Qt::Key_Return);  // Enter on the chosen folder confirms
        EXPECT_EQ(dialog.result(), 1);
        EXPECT_EQ(dialog.GetDoneCount(), 2);
    });
    EXPECT_EQ(dir.Read("dst/a.odt"), "a.odt");
    EXPECT_EQ(dir.Read("dst/c.odt"), "c.odt");
    EXPECT_FALSE(dir.Exists("dst/b.odt"));
    for (const char* name : {"a.odt", "b.odt", "c.odt"})
        EXPECT_TRUE(dir.Exists(std::string("src/") + name));
    EXPECT_TRUE(messages.empty());
}

TEST_F(FileDialogTest, MoveLeavesADocumentWhoseTargetExists)
{
    dir.MakeFile("src/a.odt", "mine a");
    dir.MakeFile("src/b.odt", "mine b");
    dir.MakeFile("dst/b.odt", "theirs");
    WithSelected({"a.odt", "b.odt"}, [&] {
        DocCopyDialog dialog(&host, host.SelectedDocs());
        ChooseTarget(dialog, dst);
        dialog.findChild<QCheckBox*>("moveBox")->setChecked(true);
        dialog.findChild<QPushButton*>("okButton")->click();
        EXPECT_EQ(dialog.result(), 1);
        EXPECT_EQ(dialog.GetDoneCount(), 1);
    });
    EXPECT_FALSE(dir.Exists("src/a.odt"));
    EXPECT_EQ(dir.Read("dst/a.odt"), "mine a");
    EXPECT_EQ(dir.Read("src/b.odt"), "mine b");
    EXPECT_EQ(dir.Read("dst/b.odt"), "theirs");
    EXPECT_EQ(messages, std::vector<std::string>{ResString(15730) + "b.odt" + ResString(15731)});
    EXPECT_EQ(ResString(15731), " could not be moved.");  // no guess at the cause...
    EXPECT_EQ(AnsweredDocBox().detail.toStdString(), std::strerror(EEXIST));  // ...the system's
}

TEST_F(FileDialogTest, EveryDocumentFailingStillEndsWithOne)
{
    dir.MakeFile("src/a.odt", "a");
    dir.MakeFile("src/b.odt", "b");
    WithSelected({"a.odt", "b.odt"}, [&] {
        DocCopyDialog dialog(&host, host.SelectedDocs());  // the tree starts in src: each target is its source
        dialog.findChild<QPushButton*>("okButton")->click();
        EXPECT_EQ(dialog.result(), 1);
        EXPECT_EQ(dialog.GetDoneCount(), 0);
    });
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_NE(messages[0], messages[1]);
    for (const std::string& message : messages) {
        EXPECT_EQ(message.rfind(ResString(15728), 0), 0u) << message;
        EXPECT_TRUE(message.ends_with(ResString(15729))) << message;
    }
    EXPECT_EQ(dir.Read("src/a.odt"), "a");
    EXPECT_EQ(dir.Read("src/b.odt"), "b");
}

TEST_F(FileDialogTest, ANewFolderIsChosenAsTheTarget)
{
    dir.MakeFile("src/a.odt", "a");
    WithSelected({"a.odt"}, [&] {
        DocCopyDialog dialog(&host, host.SelectedDocs());
        ChooseTarget(dialog, dst);
        QTimer::singleShot(0, [] {
            auto* folderDialog = qobject_cast<DocFolderDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(folderDialog, nullptr);
            folderDialog->findChild<QLineEdit*>("nameEdit")->setText("2024/Letters");
            folderDialog->findChild<QPushButton*>("okButton")->click();
        });
        dialog.findChild<QPushButton*>("folderButton")->click();
        EXPECT_EQ(ChosenDir(dialog), dst + "/2024/Letters");
        dialog.findChild<QPushButton*>("okButton")->click();
        EXPECT_EQ(dialog.GetDoneCount(), 1);
    });
    EXPECT_EQ(dir.Read("dst/2024/Letters/a.odt"), "a");
    EXPECT_TRUE(messages.empty());
}

class RenameDialogTest : public FileDialogTest {
protected:
    // Renames the selected "report.odt" to `newName`; the dialog's rename count.
    unsigned Rename(const QString& newName)
    {
        unsigned count = 99;
        WithSelected({"report.odt"}, [&] {
            DocRenameDialog dialog(&host, host.SelectedDocs().front());
            EXPECT_EQ(dialog.findChild<QLineEdit*>("oldNameEdit")->text(), "report.odt");
            dialog.findChild<QLineEdit*>("newNameEdit")->setText(newName);
            dialog.findChild<QPushButton*>("okButton")->click();
            EXPECT_EQ(dialog.result(), 1);
            count = dialog.GetRenameCount();
        });
        return count;
    }

    std::string report = dir.MakeFile("src/report.odt", "mine");
    std::string failed = ResString(15732) + "report.odt" + ResString(15733);
};

TEST_F(RenameDialogTest, TheSameNameChangesNothing)
{
    EXPECT_EQ(Rename("report.odt"), 0u);
    EXPECT_EQ(dir.Read("src/report.odt"), "mine");
    EXPECT_TRUE(messages.empty());
}

TEST_F(RenameDialogTest, ACaseVariantIsRenamed)
{
    EXPECT_EQ(Rename("Report.odt"), 1u);
    EXPECT_EQ(dir.Read("src/Report.odt"), "mine");
    EXPECT_FALSE(dir.Exists("src/report.odt"));
    EXPECT_TRUE(messages.empty());
}

TEST_F(RenameDialogTest, AnExistingNameFailsAndBothFilesStay)
{
    dir.MakeFile("src/other.odt", "theirs");
    EXPECT_EQ(Rename("other.odt"), 0u);
    EXPECT_EQ(dir.Read("src/report.odt"), "mine");
    EXPECT_EQ(dir.Read("src/other.odt"), "theirs");
    EXPECT_EQ(messages, std::vector<std::string>{failed});
    EXPECT_EQ(AnsweredDocBox().detail.toStdString(), std::strerror(EEXIST));
}

TEST_F(RenameDialogTest, ANameWithASeparatorIsRefused)
{
    dir.MakeDir("src/sub");
    for (const QString name : {"sub/report.odt", "../report.odt", ".."}) {
        EXPECT_EQ(Rename(name), 0u);
        EXPECT_EQ(messages, std::vector<std::string>{failed});
    }
    EXPECT_EQ(dir.Read("src/report.odt"), "mine");
    EXPECT_FALSE(dir.Exists("src/sub/report.odt"));
    EXPECT_FALSE(dir.Exists("report.odt"));
}

TEST_F(RenameDialogTest, AnEmptyNameDisablesOk)
{
    WithSelected({"report.odt"}, [&] {
        DocRenameDialog dialog(&host, host.SelectedDocs().front());
        auto* name = dialog.findChild<QLineEdit*>("newNameEdit");
        auto* ok = dialog.findChild<QPushButton*>("okButton");
        EXPECT_TRUE(ok->isEnabled());
        name->clear();
        EXPECT_FALSE(ok->isEnabled());
        name->setText("x");
        EXPECT_TRUE(ok->isEnabled());
    });
}

}  // namespace
