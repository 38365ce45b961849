// The new-folder dialog on a real base directory.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <filesystem>

#include "docmgr/dialogs/docfolderdialog.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/tempdir.h"

namespace {

class FolderDialogTest : public ::testing::Test {
protected:
    FolderDialogTest()
    {
        SetDocBoxAnswerer([this](const QString& text, bool) {
            messages.push_back(text.toStdString());
            return RET_YES;
        });
    }
    ~FolderDialogTest() override { SetDocBoxAnswerer({}); }

    // Types `name` and presses OK; the dialog's result.
    int Confirm(DocFolderDialog& dialog, const QString& name)
    {
        dialog.findChild<QLineEdit*>("nameEdit")->setText(name);
        dialog.findChild<QPushButton*>("okButton")->click();
        return dialog.result();
    }

    ResModule resources{Language::English};
    TempDir dir;
    std::string base = dir.MakeDir("base");
    std::vector<std::string> messages;
};

TEST_F(FolderDialogTest, OkNeedsANameAndTheTitleNamesTheBase)
{
    DocFolderDialog dialog(nullptr, base);
    EXPECT_EQ(dialog.windowTitle().toStdString(), ResText(ResKind::Dialog, 15707) + " [" + base + "]");
    auto* name = dialog.findChild<QLineEdit*>("nameEdit");
    auto* ok = dialog.findChild<QPushButton*>("okButton");
    ASSERT_TRUE(name && ok);
    EXPECT_FALSE(ok->isEnabled());
    name->setText("x");
    EXPECT_TRUE(ok->isEnabled());
    name->clear();
    EXPECT_FALSE(ok->isEnabled());
    EXPECT_TRUE(dialog.GetFolder().empty());
}

TEST_F(FolderDialogTest, ANameWithSeparatorsIsMadeBelowTheBase)
{
    DocFolderDialog dialog(nullptr, base);
    EXPECT_EQ(Confirm(dialog, "2024/letters"), 1);
    EXPECT_TRUE(std::filesystem::is_directory(base + "/2024/letters"));
    EXPECT_EQ(dialog.GetFolder(), base + "/2024/letters");
    EXPECT_TRUE(messages.empty());
}

TEST_F(FolderDialogTest, ANameLeavingTheBaseIsRefused)
{
    for (const std::string& name : {std::string("../outside"), std::string("a/../../outside"), dir.PathOf("outside")}) {
        messages.clear();
        DocFolderDialog dialog(nullptr, base);
        EXPECT_EQ(Confirm(dialog, QString::fromStdString(name)), 1) << name;
        ASSERT_EQ(messages.size(), 1u) << name;
        EXPECT_EQ(messages[0], ResString(15726) + base + name + ResString(15727));
        EXPECT_FALSE(dir.Exists("outside")) << name;
        EXPECT_TRUE(dialog.GetFolder().empty()) << name;
    }
    // Also when the folder outside exists: the copy dialog must not be led there.
    dir.MakeDir("outside");
    DocFolderDialog dialog(nullptr, base);
    Confirm(dialog, "../outside");
    EXPECT_TRUE(dialog.GetFolder().empty());
}

TEST_F(FolderDialogTest, APlainFileOfThatNameIsNoFolder)
{
    dir.MakeFile("base/notes", "keep");
    DocFolderDialog dialog(nullptr, base);
    EXPECT_EQ(Confirm(dialog, "notes"), 1);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0], ResString(15726) + base + "notes" + ResString(15727));
    EXPECT_EQ(dir.Read("base/notes"), "keep");
    EXPECT_TRUE(dialog.GetFolder().empty());
}

}  // namespace
