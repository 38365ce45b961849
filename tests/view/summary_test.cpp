// The summary pane of single view, judged by what it paints.
#include <QImage>

#include "docmgr/view/docsummarywindow.h"
#include "tests/support/managerfixture.h"

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
    DocSummaryWindow* pane = host->GetSummaryWindow();
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
