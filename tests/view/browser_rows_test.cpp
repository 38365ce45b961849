// Rows of the document list: the model's consistency through every change, the
// selection walk, double clicks, the context menu, editing and the collection progress.
#include <QAbstractItemModelTester>
#include <QMouseEvent>
#include <QTest>

#include "docmgr/records/docfields.h"
#include "docmgr/view/collectprogress.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/doclistmodel.h"
#include "tests/support/managerfixture.h"

namespace {
// Collects the model tester's complaints.
std::vector<std::string>* complaints = nullptr;
void CollectWarnings(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (complaints && type != QtDebugMsg && type != QtInfoMsg)
        complaints->push_back(message.toStdString());
}
}  // namespace

TEST_F(ManagerTest, ModelStaysConsistentThroughCollectSortDeleteAndEdit)
{
    WriteDefaultConfig();
    for (const char* name : {"c.odt", "a.odt", "d.odt", "b.odt"})
        dir.MakeFile(std::string("docs/") + name, name);
    MakeHost();
    std::vector<std::string> warnings;
    complaints = &warnings;
    const QtMessageHandler previous = qInstallMessageHandler(CollectWarnings);
    {
        QAbstractItemModelTester tester(Browser().GetModel(),
                                        QAbstractItemModelTester::FailureReportingMode::Warning);
        host->Init();
        ASSERT_EQ(Browser().GetRowCount(), 4);
        EXPECT_EQ(Browser().model()->rowCount(), 4);

        // Sorting keeps the selected documents selected.
        Select({"a.odt", "d.odt"});
        Settings().WorkingGroup().sortColumnId = COL_TITLE;
        Browser().SortFiles(true);
        EXPECT_EQ(RowNames(), (std::vector<std::string>{"a.odt", "b.odt", "c.odt", "d.odt"}));
        EXPECT_TRUE(Browser().selectionModel()->isRowSelected(0, {}));
        EXPECT_TRUE(Browser().selectionModel()->isRowSelected(3, {}));
        EXPECT_EQ(Browser().GetSelectedRowCount(), 2);

        AnswerBoxes(RET_YES);
        host->Command(CMD_DELETE);
        EXPECT_EQ(RowNames(), (std::vector<std::string>{"b.odt", "c.odt"}));
        EXPECT_EQ(Browser().model()->rowCount(), 2);

        Select({"c.odt"});
        host->changeResult = true;
        host->known["c.odt"].title = "Edited";
        host->Command(CMD_DOCINFO);
        host->CollectFiles();
        host->SummaryHdl();
    }
    qInstallMessageHandler(previous);
    complaints = nullptr;
    for (const std::string& warning : warnings)
        EXPECT_EQ(warning.find("FAIL"), std::string::npos) << warning;
}

TEST_F(ManagerTest, SelectedDocumentsAreWalkedInRowOrder)
{
    StartWith({"a.odt", "b.odt", "c.odt", "d.odt", "e.odt"});
    Settings().WorkingGroup().sortColumnId = COL_NAME;
    Browser().SortFiles(false);
    EXPECT_EQ(host->GetFirstDoc(), nullptr);

    // Selected in reverse order, in two runs.
    Browser().selectionModel()->select(Browser().model()->index(4, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    Browser().selectionModel()->select(
        QItemSelection(Browser().model()->index(1, 0), Browser().model()->index(2, 0)),
        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    std::vector<std::string> walked;
    for (const std::string* doc = host->GetFirstDoc(); doc; doc = host->GetNextDoc())
        walked.push_back(*doc);
    EXPECT_EQ(walked, (std::vector<std::string>{docs + "/b.odt", docs + "/c.odt", docs + "/e.odt"}));
    EXPECT_EQ(host->GetNextDoc(), nullptr);
    EXPECT_EQ(Browser().GetSelectedRowCount(), 3);
    Browser().DeselectFirstSelected();
    EXPECT_EQ(*host->GetFirstDoc(), docs + "/c.odt");
}

TEST_F(ManagerTest, DoubleClickOnARowOpensItWhenOpeningIsPossible)
{
    WriteDefaultConfig();
    MakeDocs({"a.odt", "b.odt"});
    MakeHost();
    QTimer::singleShot(0, host.get(), [this] {
        QTableView& browser = Browser();
        const QRect cell = browser.visualRect(browser.model()->index(1, 4));
        QWidget* viewport = browser.viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, cell.center());
        QMouseEvent doubleClick(QEvent::MouseButtonDblClick, cell.center(), viewport->mapToGlobal(cell.center()),
                                Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &doubleClick);
        if (host->isVisible())
            host->done(0);
    });
    EXPECT_EQ(host->Execute(), 1);
    ASSERT_NE(host->GetFirstDoc(), nullptr);
    EXPECT_EQ(fsutil::FileName(*host->GetFirstDoc()), RowNames()[1]);
    EXPECT_EQ(host->GetNextDoc(), nullptr);
}

TEST_F(ManagerTest, TheFirstDownArrowSelectsTheFirstRow)
{
    StartWith({"a.odt", "b.odt", "c.odt"});
    host->show();
    QApplication::setActiveWindow(host.get());
    Browser().setFocus(Qt::TabFocusReason);  // the focus makes row 0 current, unselected
    Browser().ClearSelection();
    QTest::keyClick(&Browser(), Qt::Key_Down);
    EXPECT_EQ(Browser().GetFirstSelectedRow(), 0);
    QTest::keyClick(&Browser(), Qt::Key_Down);
    EXPECT_EQ(Browser().GetFirstSelectedRow(), 1);
}

TEST_F(ManagerTest, EditedDocumentInformationIsShownAnew)
{
    StartWith({"a.odt"});
    Select({"a.odt"});
    const int calls = host->createCalls;
    host->known["a.odt"].title = "New title";

    host->changeResult = false;
    host->Command(CMD_DOCINFO);
    EXPECT_EQ(host->changeCalls, 1);
    EXPECT_EQ(host->createCalls, calls);
    EXPECT_EQ(Browser().GetColumnText(0, COL_TITLE), "a.odt");

    host->changeResult = true;
    dir.MakeFile("docs/a.odt", "grown since");
    host->Command(CMD_DOCINFO);
    EXPECT_EQ(host->createCalls, calls + 1);
    EXPECT_EQ(Browser().GetColumnText(0, COL_TITLE), "New title");
    EXPECT_EQ(Browser().GetColumnText(0, COL_SIZE), "11");
    EXPECT_EQ(Browser().model()->data(Browser().model()->index(0, 2)).toString(), "New title");
    EXPECT_EQ(Browser().GetSelectedRowCount(), 1);
}

TEST_F(ManagerTest, ALongCollectionShowsHowFarItHasGot)
{
    WriteConfig({{"Docs", "Main", docs + "/**", "1"}});
    for (const char* name : {"one/a.odt", "two/b.odt", "two/deeper/c.odt"})
        dir.MakeFile(std::string("docs/") + name, "x");
    CollectProgress::SetDelay(0);  // every collection counts as long
    Start();
    CollectProgress::SetDelay(500);
    EXPECT_EQ(Browser().GetRowCount(), 3);
    EXPECT_TRUE(Browser().GetCollectProgress().WasShown());
    EXPECT_TRUE(Browser().GetCollectProgress().LastText().contains("folders"));
    EXPECT_EQ(host->findChild<QWidget*>("collectProgress"), nullptr);  // gone at the end
    EXPECT_EQ(host->GetPathLine(), "3 documents in " + docs + "/**");
}
