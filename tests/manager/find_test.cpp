// The find bar narrows the shown rows as the user types, without reading any document again,
// and what the dialog hands on (the chosen documents, printing, export) is the shown rows;
// the list follows its folders, and the refresh key collects at once.
#include <QFileDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QSignalSpy>

#include "docmgr/print/doclistprinter.h"
#include "docmgr/records/docfields.h"
#include "docmgr/view/docfolderwatch.h"
#include "tests/support/managerfixture.h"
#include "tests/support/testsource.h"

class FindTest : public ManagerTest {
protected:
    void SetUp() override
    {
        WriteDefaultConfig();
        MakeDocs({"alpha.odt", "beta.odt", "Zoë memo.odt", "zeta-with-a-much-longer-name-than-any-other.odt"});
        TestHost& made = MakeHost();
        made.known["alpha.odt"] = TestSource::Sample("alpha.odt");
        made.known["alpha.odt"].title = "Budget";
        made.known["alpha.odt"].author = "Önder";
        made.Inside().Init();
        Working().columnId = {COL_NAME, COL_TITLE, COL_AUTHOR};
        Browser().InsertColumns();
        host->show();
        QApplication::setActiveWindow(host.get());
    }
    QWidget* Focused() { return QApplication::focusWidget() ? QApplication::focusWidget() : host.get(); }
    QLineEdit* Field() { return Child<QLineEdit>("findField"); }
    std::vector<std::string> ShownNames()
    {
        std::vector<std::string> names;
        for (const long row : Browser().ShownRows())
            names.push_back(fsutil::FileName(Browser().GetRowList().Row(row).entry));
        return names;
    }
    std::set<std::string> ShownSet()
    {
        const Names names = ShownNames();
        return {names.begin(), names.end()};
    }
    using Names = std::vector<std::string>;
    using NameSet = std::set<std::string>;
};

TEST_F(FindTest, TypingNarrowsTheRowsWithoutReadingAgainClearingShowsAllEscapeCloses)
{
    QWidget* bar = Child<QWidget>("findBar");
    EXPECT_TRUE(bar->isHidden());  // the dialog keeps its layout until the find key
    const int reads = host->createCalls;
    Select({"beta.odt", "Zoë memo.odt"});

    QTest::keyClick(Focused(), Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(bar->isVisible());
    EXPECT_TRUE(Field()->hasFocus());
    // Any shown column (the name, the title, the author "Tester"), case folded beyond ASCII.
    QTest::keyClicks(Field(), "ZOË");
    EXPECT_EQ(ShownNames(), (Names{"Zoë memo.odt"}));
    EXPECT_EQ(Child<QLabel>("findCount")->text().toStdString(), "1 of 4 documents");
    EXPECT_EQ(Browser().GetRowCount(), 4);  // the list itself is whole
    // Only the selected row still shown is handed on; the path line keeps its count.
    EXPECT_EQ(host->SelectedDocs(), (Names{docs + "/Zoë memo.odt"}));
    EXPECT_EQ(Child<QLabel>("pathLine")->text().toStdString().substr(0, 2), "4 ");
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(Field(), Qt::Key_Backspace);
    QTest::keyClicks(Field(), "ÖND");  // the author of alpha.odt
    EXPECT_EQ(ShownNames(), (Names{"alpha.odt"}));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(Field(), Qt::Key_Backspace);
    QTest::keyClicks(Field(), "TA");
    EXPECT_EQ(ShownSet(), (NameSet{"beta.odt", "zeta-with-a-much-longer-name-than-any-other.odt"}));
    QTest::keyClicks(Field(), "-w");
    EXPECT_EQ(ShownNames(), (Names{"zeta-with-a-much-longer-name-than-any-other.odt"}));
    EXPECT_FALSE(Child<QPushButton>("openButton")->isEnabled());  // nothing selected is shown
    QTest::keyClicks(Field(), "x");
    EXPECT_EQ(Browser().GetShownRowCount(), 0);
    EXPECT_EQ(Child<QLabel>("findCount")->text().toStdString(), "0 of 4 documents");

    Field()->clear();
    EXPECT_EQ(Browser().GetShownRowCount(), 4);
    QTest::keyClicks(Field(), "bud");
    EXPECT_EQ(ShownNames(), (Names{"alpha.odt"}));
    QTest::keyClick(Field(), Qt::Key_Escape);
    EXPECT_TRUE(bar->isHidden());
    EXPECT_TRUE(host->isVisible());  // Escape closed the bar, not the dialog
    EXPECT_EQ(Browser().GetShownRowCount(), 4);
    EXPECT_EQ(host->createCalls, reads);  // no document was read for any of it
}

TEST_F(FindTest, ChosenDocumentsPrintingAndExportTakeTheShownRows)
{
    Browser().selectAll();
    Impl().FindHdl();
    QTest::keyClicks(Field(), "ta.odt");
    EXPECT_EQ(host->SelectedDocs(), (Names{docs + "/beta.odt"}));
    Browser().selectAll();
    EXPECT_EQ(host->SelectedDocs(), (Names{docs + "/beta.odt"}));

    // The hidden long name does not widen the printed name column.
    QPrinter printer;
    const QString name = QString::fromStdString(Browser().GetColumnTitle(COL_NAME));
    EXPECT_EQ(DocListPrinter(Browser(), printer).ColumnWidths({name}).at(COL_NAME), std::string("File name").size());

    Working().columnId = {1};
    Browser().InsertColumns();
    EXPECT_EQ(ShownNames(), (Names{"beta.odt"}));  // new columns, the same text found
    OnNextModal([this](QDialog& dialog) {
        dynamic_cast<QFileDialog&>(dialog).selectFile(QString::fromStdString(dir.PathOf("list.csv")));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    Impl().Command(CMD_EXPORTLIST);
    EXPECT_EQ(dir.Read("list.csv"), "File name\r\nbeta.odt\r\n");
}

TEST_F(FindTest, TheListFollowsItsFoldersOnceKeepingSelectionAndFindAndF5CollectsAtOnce)
{
    QSignalSpy collections(&Browser(), &DocBrowser::countLineChanged);
    Select({"beta.odt"});
    dir.MakeFile("docs/new.odt", "x");
    QTRY_VERIFY_WITH_TIMEOUT(Browser().GetRowCount() == 5, 3000);
    EXPECT_EQ(host->SelectedDocs(), (Names{docs + "/beta.odt"}));
    // That collection wrote the folder's index, which asks for no further collection.
    const qsizetype afterNew = collections.size();
    QTest::qWait(4 * DocFolderWatch::SETTLE_MS);
    EXPECT_EQ(collections.size(), afterNew);

    // The find stays in force over the collections.
    Impl().FindHdl();
    QTest::keyClicks(Field(), "new");
    EXPECT_EQ(ShownNames(), (Names{"new.odt"}));
    dir.MakeFile("docs/new too.odt", "x");
    QTRY_VERIFY_WITH_TIMEOUT(ShownSet() == (NameSet{"new.odt", "new too.odt"}), 3000);
    std::filesystem::remove(dir.PathOf("docs/new.odt"));
    QTRY_VERIFY_WITH_TIMEOUT(ShownSet() == (NameSet{"new too.odt"}), 3000);

    // The refresh key lists a new document at once, keeping the scroll position.
    Field()->clear();
    for (int i = 0; i < 60; ++i)
        dir.MakeFile("docs/more" + std::to_string(100 + i) + ".odt", "x");
    Impl().RefreshHdl();
    Browser().verticalScrollBar()->setValue(20);
    ASSERT_EQ(Browser().verticalScrollBar()->value(), 20);
    dir.MakeFile("docs/latest.odt", "x");
    QTest::keyClick(Focused(), Qt::Key_F5);
    const Names names = RowNames();
    EXPECT_NE(std::find(names.begin(), names.end(), "latest.odt"), names.end());
    EXPECT_EQ(Browser().verticalScrollBar()->value(), 20);
}

TEST(DocFolderWatch, WatchesAllFoldersOrNoneAndAsksOnlyWhenAFolderTimeMoved)
{
    TempDir dir;
    const std::string a = dir.MakeDir("a"), b = dir.MakeDir("b");
    DocFolderWatch watch(nullptr);
    QSignalSpy asked(&watch, &DocFolderWatch::foldersChanged);
    watch.Watch({a, dir.PathOf("missing")});
    EXPECT_FALSE(watch.IsWatching());  // one folder cannot be watched: none is
    watch.Watch({a, b});
    ASSERT_TRUE(watch.IsWatching());
    dir.MakeFile("b/new.odt", "x");
    dir.MakeFile("b/other.odt", "x");
    QTRY_COMPARE_WITH_TIMEOUT(asked.size(), 1, 3000);  // two changes, settled into one
    // Changes made before Watch (as a collection's index writes are) ask for nothing.
    dir.MakeFile("a/.docindex", "x");
    watch.Watch({a, b});
    QTest::qWait(3 * DocFolderWatch::SETTLE_MS);
    EXPECT_EQ(asked.size(), 1);
    watch.Stop();
    dir.MakeFile("a/late.odt", "x");
    QTest::qWait(3 * DocFolderWatch::SETTLE_MS);
    EXPECT_EQ(asked.size(), 1);
}
