// The trash, undo and redo of the file commands, and the edit of several documents in a
// host that cannot write them.
#include <QCheckBox>
#include <cstdlib>

#include "docmgr/dialogs/docdirbox.h"
#include "tests/support/managerfixture.h"

class UndoTest : public ManagerTest {
protected:
    void SetUp() override
    {
        WriteDefaultConfig();
        for (const char* name : {"a.odt", "b.odt", "c.odt"})
            dir.MakeFile(std::string("docs/") + name, std::string("content of ") + name);
        Start();
        host->show();
        QApplication::setActiveWindow(host.get());
    }
    bool Enabled(unsigned short id)
    {
        return static_cast<DocCommandMenu*>(Child<QToolButton>("commandsButton")->menu())->Item(id)->isEnabled();
    }
    // The key where the focus is after a command's dialogs have closed.
    void CtrlZ()
    {
        QApplication::setActiveWindow(host.get());
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : host.get(), Qt::Key_Z, Qt::ControlModifier);
    }
    std::set<std::string> Rows()
    {
        const std::vector<std::string> rows = RowNames();
        return {rows.begin(), rows.end()};
    }
};

TEST_F(UndoTest, DeleteGoesToTheTrashWholeCtrlZBringsDocumentAndRowBackRedoSendsItAgain)
{
    EXPECT_FALSE(Enabled(CMD_UNDO) || Enabled(CMD_REDO));
    Select({"a.odt", "b.odt"});
    AnswerBoxes(RET_YES);
    Impl().Command(CMD_DELETE);
    EXPECT_EQ(queries, std::vector<std::string>{"Move the 2 selected documents to the trash?"});
    EXPECT_EQ(dir.Read("data/Trash/files/a.odt"), "content of a.odt");
    EXPECT_TRUE(dir.Exists("data/Trash/info/b.odt.trashinfo"));
    EXPECT_EQ(RowNames(), std::vector<std::string>{"c.odt"});
    EXPECT_TRUE(Enabled(CMD_UNDO));

    CtrlZ();
    EXPECT_EQ(dir.Read("docs/a.odt"), "content of a.odt");
    EXPECT_FALSE(dir.Exists("data/Trash/files/b.odt") || dir.Exists("data/Trash/info/b.odt.trashinfo"));
    EXPECT_EQ(Rows(), (std::set<std::string>{"a.odt", "b.odt", "c.odt"}));
    const std::vector<std::string> selected = host->SelectedDocs();
    EXPECT_EQ(std::set<std::string>(selected.begin(), selected.end()), (std::set<std::string>{docs + "/a.odt", docs + "/b.odt"}));
    EXPECT_FALSE(Enabled(CMD_UNDO));
    EXPECT_TRUE(Enabled(CMD_REDO));

    Impl().Command(CMD_REDO);
    EXPECT_FALSE(dir.Exists("docs/a.odt") || dir.Exists("docs/b.odt"));
    EXPECT_EQ(dir.Read("data/Trash/files/b.odt"), "content of b.odt");
    EXPECT_EQ(RowNames(), std::vector<std::string>{"c.odt"});
}

TEST_F(UndoTest, WhereNoTrashTakesAFileASecondQuestionComesBeforeItIsDeletedForGood)
{
    // The trash would have to be made below a plain file.
    dir.MakeFile("blocker", "x");
    setenv("XDG_DATA_HOME", dir.PathOf("blocker/data").c_str(), 1);
    Select({"a.odt"});
    int asked = 0;
    SetDocBoxAnswerer([&](const QString& text, bool query) {
        (query ? queries : infos).push_back(text.toStdString());
        return ++asked == 1 ? RET_YES : RET_NO;  // yes to the trash, no to deleting for good
    });
    Impl().Command(CMD_DELETE);
    ASSERT_EQ(queries.size(), 2u);
    EXPECT_EQ(queries[1], "No trash can take these files:\n" + docs + "/a.odt\n\nDelete them for good? This cannot be undone.");
    EXPECT_EQ(AnsweredDocBox().defaultAnswer, RET_NO);
    EXPECT_EQ(dir.Read("docs/a.odt"), "content of a.odt");
    EXPECT_EQ(RowNames().size(), 3u);

    AnswerBoxes(RET_YES);
    Impl().Command(CMD_DELETE);
    EXPECT_FALSE(dir.Exists("docs/a.odt"));
    EXPECT_EQ(RowNames(), (std::vector<std::string>{"b.odt", "c.odt"}));
    EXPECT_FALSE(Enabled(CMD_UNDO));  // deleted for good is not taken back
    EXPECT_FALSE(std::filesystem::exists("files/a.odt"));
}

TEST_F(UndoTest, RenameMoveAndInformationEditAreTakenBackOneAtATimeAChangedFileIsNot)
{
    const std::string sub = dir.MakeDir("docs/sub");
    Select({"a.odt"});
    OnNextModal([](QDialog& dialog) {
        In<QLineEdit>(dialog, "newNameEdit")->setText("r.odt");
        In<QPushButton>(dialog, "okButton")->click();
    });
    Impl().Command(CMD_RENAME);
    Select({"b.odt"});
    OnNextModal([&sub](QDialog& dialog) {
        In<DocDirBox>(dialog, "directoryTree")->ReadDirs();
        In<DocDirBox>(dialog, "directoryTree")->SelectDir(sub);
        In<QCheckBox>(dialog, "moveBox")->setChecked(true);
        In<QPushButton>(dialog, "okButton")->click();
    });
    Impl().Command(CMD_COPY);
    ASSERT_TRUE(dir.Exists("docs/r.odt") && dir.Exists("docs/sub/b.odt"));
    host->change = [](const std::string& file) {
        testfs::WaitForFileClock();
        testfs::WriteFile(file, "edited");
        return true;
    };
    Select({"c.odt"});
    Impl().Command(CMD_DOCINFO);
    ASSERT_EQ(dir.Read("docs/c.odt"), "edited");

    CtrlZ();
    EXPECT_EQ(dir.Read("docs/c.odt"), "content of c.odt");
    CtrlZ();
    EXPECT_EQ(dir.Read("docs/b.odt"), "content of b.odt");
    EXPECT_FALSE(dir.Exists("docs/sub/b.odt"));
    Impl().Command(CMD_REDO);  // moved again, and then changed behind the dialog's back
    testfs::WaitForFileClock();
    dir.MakeFile("docs/sub/b.odt", "changed meanwhile");
    AnswerBoxes(RET_YES);
    CtrlZ();
    EXPECT_EQ(infos,
              std::vector<std::string>{"This step can no longer be undone: " + sub + "/b.odt has changed since. Nothing was changed."});
    EXPECT_EQ(dir.Read("docs/sub/b.odt"), "changed meanwhile");
    EXPECT_FALSE(dir.Exists("docs/b.odt"));
    CtrlZ();  // the step before it still can
    EXPECT_EQ(dir.Read("docs/a.odt"), "content of a.odt");
    EXPECT_FALSE(dir.Exists("docs/r.odt"));

    // A copy is taken back by removing it, but never once it is all that is left.
    for (const bool originalGone : {false, true}) {
        Select({"a.odt"});
        OnNextModal([&sub](QDialog& dialog) {
            In<DocDirBox>(dialog, "directoryTree")->ReadDirs();
            In<DocDirBox>(dialog, "directoryTree")->SelectDir(sub);
            In<QPushButton>(dialog, "okButton")->click();
        });
        Impl().Command(CMD_COPY);
        ASSERT_EQ(dir.Read("docs/sub/a.odt"), "content of a.odt");
        if (originalGone)
            std::filesystem::rename(docs + "/a.odt", dir.PathOf("a.odt"));
        CtrlZ();
        EXPECT_EQ(dir.Exists("docs/sub/a.odt"), originalGone);
        if (originalGone) {
            EXPECT_EQ(infos.back(), "This step can no longer be undone: " + docs + "/a.odt has changed since. Nothing was changed.");
        }
    }
}

TEST_F(UndoTest, EditingSeveralDocumentsInAHostThatCannotWriteThemSaysSo)
{
    Select({"a.odt", "b.odt"});
    EXPECT_TRUE(Enabled(CMD_BATCHINFO));
    AnswerBoxes(RET_YES);
    Impl().Command(CMD_BATCHINFO);
    EXPECT_EQ(infos, std::vector<std::string>{"This program cannot write the information of documents."});
}
