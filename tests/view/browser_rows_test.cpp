// Rows of the document list: the selection walk, double clicks, keys, editing, the
// collection progress, and the summary pane of single view, judged by what it paints.
#include <QImage>
#include <QMouseEvent>

#include "docmgr/records/docfields.h"
#include "docmgr/view/collectprogress.h"
#include "docmgr/view/doccommandmenu.h"
#include "docmgr/view/docsummarywindow.h"
#include "tests/support/managerfixture.h"

TEST_F(ManagerTest, RowsAreSelectedByKeysWalkedInRowOrderKeptThroughASortAndShownAnewWhenEdited)
{
    StartWith({"a.odt", "b.odt", "c.odt", "d.odt", "e.odt"});
    Working().sortColumnId = COL_NAME;
    Browser().SortFiles(false);
    EXPECT_EQ(host->GetFirstDoc(), nullptr);
    // The first down arrow selects the first row, which the focus made current, unselected.
    host->show();
    QApplication::setActiveWindow(host.get());
    Browser().setFocus(Qt::TabFocusReason);
    Browser().ClearSelection();
    QTest::keyClick(&Browser(), Qt::Key_Down);
    EXPECT_EQ(Browser().GetFirstSelectedRow(), 0);
    QTest::keyClick(&Browser(), Qt::Key_Down);
    EXPECT_EQ(Browser().GetFirstSelectedRow(), 1);

    // Selected in reverse order, in two runs; sorting anew keeps the selection.
    Browser().ClearSelection();
    Browser().selectionModel()->select(Browser().model()->index(4, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    Browser().selectionModel()->select(QItemSelection(Browser().model()->index(1, 0), Browser().model()->index(2, 0)),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    EXPECT_EQ(host->SelectedDocs(), (std::vector<std::string>{docs + "/b.odt", docs + "/c.odt", docs + "/e.odt"}));
    Working().sortAscending = false;
    Browser().SortFiles(true);
    EXPECT_EQ(host->SelectedDocs(), (std::vector<std::string>{docs + "/e.odt", docs + "/c.odt", docs + "/b.odt"}));
    Browser().DeselectFirstSelected();
    EXPECT_EQ(*host->GetFirstDoc(), docs + "/c.odt");

    // Information edited through the host is read again, unless the host says it changed nothing.
    Select({"a.odt"});  // the last row
    const int calls = host->createCalls;
    host->known["a.odt"].title = "New title";
    Impl().Command(CMD_DOCINFO);
    EXPECT_EQ(host->createCalls, calls);
    host->changeResult = true;
    dir.MakeFile("docs/a.odt", "grown since");
    Impl().Command(CMD_DOCINFO);
    EXPECT_EQ(host->createCalls, calls + 1);
    EXPECT_EQ(Browser().GetColumnText(4, COL_TITLE) + "|" + Browser().GetColumnText(4, COL_SIZE), "New title|11");
    EXPECT_EQ(Browser().GetSelectedRowCount(), 1);
}

TEST_F(ManagerTest, ALongCollectionShowsHowFarItHasGotADoubleClickOnARowOpensIt)
{
    WriteConfig({{"Docs", "Main", docs + "/**", "1"}});
    MakeDocs({"one/a.odt", "two/b.odt", "two/deeper/c.odt"});
    CollectProgress::SetDelay(0);  // every collection counts as long
    Start();
    CollectProgress::SetDelay(100);
    EXPECT_EQ(Browser().GetRowCount(), 3);
    EXPECT_TRUE(Browser().GetCollectProgress().WasShown());
    EXPECT_TRUE(Browser().GetCollectProgress().LastText().contains("folders"));
    EXPECT_EQ(host->findChild<QWidget*>("collectProgress"), nullptr);  // gone at the end
    EXPECT_EQ(Impl().pathLineText, "3 documents in " + docs + "/**");

    // A double click on a row opens it when opening is possible.
    MakeHost();
    QTimer::singleShot(0, host.get(), [this] {
        QTableView& browser = Browser();
        const QRect cell = browser.visualRect(browser.model()->index(1, 4));
        QWidget* viewport = browser.viewport();
        QTest::mouseClick(viewport, Qt::LeftButton, {}, cell.center());
        QMouseEvent doubleClick(QEvent::MouseButtonDblClick, cell.center(), viewport->mapToGlobal(cell.center()), Qt::LeftButton,
                                Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &doubleClick);
        if (host->isVisible())
            host->done(0);
    });
    EXPECT_EQ(host->Execute(), 1);
    ASSERT_NE(host->GetFirstDoc(), nullptr);
    EXPECT_EQ(fsutil::FileName(*host->GetFirstDoc()), RowNames()[1]);
    EXPECT_EQ(host->GetNextDoc(), nullptr);
}

// Pixels inside the border that are not the white background.
static int InkedPixels(QFrame& widget)
{
    const QImage image = widget.grab(widget.contentsRect()).toImage();
    int inked = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != QColor(Qt::white))
                ++inked;
    return inked;
}

TEST_F(ManagerTest, SummaryPaneShowsTheFirstSelectedDocumentOnly)
{
    WriteDefaultConfig(true);
    MakeDocs({"a.odt", "b.odt"});
    Start();
    host->resize(1000, 600);
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    DocSummaryWindow* pane = Impl().summary;
    ASSERT_NE(pane, nullptr);
    EXPECT_GE(pane->height(), DocSummaryWindow::LINE_COUNT * pane->fontMetrics().height());

    EXPECT_EQ(InkedPixels(*pane), 0);  // nothing selected: background only
    const int callsBefore = host->createCalls;
    Select({"b.odt"});
    EXPECT_GT(InkedPixels(*pane), 0);
    EXPECT_GT(host->createCalls, callsBefore);  // every paint asks the host afresh

    // No information for the document: the pane stays empty.
    host->notDocuments["b.odt"] = true;
    EXPECT_EQ(InkedPixels(*pane), 0);

    Child<QCheckBox>("singleViewBox")->click();
    EXPECT_EQ(host->findChild<DocSummaryWindow*>(), nullptr);
}
