// Columns of the document list: ids, titles, widths, frozen columns, single view, and
// fitting a column to its contents.
#include <QHeaderView>
#include <QScrollBar>
#include <filesystem>

#include "docmgr/view/doccelldelegate.h"
#include "docmgr/records/docfields.h"
#include "docmgr/view/doclistmodel.h"
#include "docmgr/view/frozencolumns.h"
#include "tests/support/managerfixture.h"

static int ColumnOf(DocBrowser& browser, uint16_t id)
{
    return browser.GetModel()->ColumnOf(id);
}

TEST_F(ManagerTest, ColumnsComeFromTheWorkingGroupsSlotsAndCellsAreAlignedByKind)
{
    StartWith({"a.odt"});
    DocBrowser& browser = Browser();
    const DocGroupConfig& group = Working();
    ASSERT_EQ(browser.ColCount(), 20);
    EXPECT_EQ(browser.GetColumnId(19), group.columnId[19]);
    EXPECT_EQ(browser.model()->headerData(ColumnOf(browser, COL_INFO0), Qt::Horizontal).toString(),
              QString::fromStdString(group.infoLabel[0]));

    // Default widths: multiples of "X" for four columns, the title rule for the rest.
    const QFontMetrics metrics(browser.font());
    const int x = metrics.horizontalAdvance("X");
    for (const auto& [id, xs] : {std::pair{COL_NAME, 10}, {COL_SIZE, 8}, {COL_TITLE, 15}, {COL_DIRECTORY, 20}})
        EXPECT_EQ(browser.columnWidth(ColumnOf(browser, id)), xs * x) << id;
    EXPECT_EQ(browser.columnWidth(ColumnOf(browser, COL_TOPIC)), 50);  // "Topic" + 10 is narrower
    EXPECT_EQ(browser.columnWidth(ColumnOf(browser, COL_MODIFIED_BY)), std::max(50, metrics.horizontalAdvance("Modified by") + 10));

    // A stored width is taken as it stands, 0 included; ids need not be in order.
    Working().columnWidth[0] = 0;
    Working().columnWidth[1] = 123;
    std::swap(Working().columnId[2], Working().columnId[19]);
    browser.InsertColumns();
    EXPECT_EQ(std::tuple(browser.columnWidth(0), browser.columnWidth(1), browser.columnWidth(2)),
              std::tuple(0, 123, 20 * x));  // the last is the directory's

    // The texts are the records' field strings; the view adds their alignment.
    auto cell = [&](uint16_t id, int role = Qt::DisplayRole) {
        return browser.model()->data(browser.model()->index(0, ColumnOf(browser, id)), role);
    };
    EXPECT_EQ(cell(COL_DIRECTORY).toString().toStdString(), docs);
    EXPECT_TRUE(cell(COL_SIZE, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_TRUE(cell(COL_TITLE, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    EXPECT_EQ(browser.GetColumnText(1, COL_TITLE), "");  // no such row
}

TEST_F(ManagerTest, HeaderDoubleClickFitsTheColumnWidthsAreStoredFrozenColumnsStayWhenScrolling)
{
    StartWith({});
    host->resize(800, 500);
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    DocBrowser& browser = Browser();
    const int titleColumn = ColumnOf(browser, COL_TITLE);

    // Empty list: 6 + 2.
    browser.FitColumn(COL_TITLE);
    EXPECT_EQ(browser.columnWidth(titleColumn), 8);
    EXPECT_EQ(Stored("0", "COLUMNWIDTH2"), "8");

    // The widest text with the cell's margins + 2, found through a double click on the title.
    MakeDocs({"a.odt", "b.odt"});
    host->known["a.odt"].title = "Short";
    host->known["b.odt"].title = "A somewhat longer title";
    Impl().CollectFiles();
    QHeaderView* header = browser.horizontalHeader();
    const int x = header->sectionViewportPosition(titleColumn) + header->sectionSize(titleColumn) / 2;
    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
    const int widest = QFontMetrics(browser.font()).horizontalAdvance("A somewhat longer title") + 2 * DocCellDelegate::TEXT_MARGIN;
    EXPECT_EQ(browser.columnWidth(titleColumn), widest + 2);

    // Wider than half the data area: half of it less one, + 2.
    host->known["b.odt"].title = std::string(400, 'W');
    std::filesystem::remove(docs + "/.docindex");  // so that the host is asked again
    Impl().CollectFiles();
    browser.FitColumn(COL_TITLE);
    EXPECT_EQ(browser.columnWidth(titleColumn), browser.viewport()->width() / 2 - 1 + 2);

    // A width the user drags is stored when the button is released.
    browser.setColumnWidth(ColumnOf(browser, COL_AUTHOR), 77);  // as a drag does, step by step
    EXPECT_NE(Stored("0", "COLUMNWIDTH6"), "77");
    QTest::mouseRelease(browser.horizontalHeader()->viewport(), Qt::LeftButton);
    EXPECT_EQ(Stored("0", "COLUMNWIDTH6"), "77");

    // Frozen columns stay while the list scrolls sideways; single view has none.
    FrozenColumnsView* frozen = browser.GetFrozenView();
    ASSERT_EQ(Working().frozenColumns, 3);
    EXPECT_TRUE(frozen->isVisible());
    EXPECT_TRUE(!frozen->isColumnHidden(2) && frozen->isColumnHidden(3));
    EXPECT_EQ(frozen->width(), browser.columnWidth(0) + browser.columnWidth(1) + browser.columnWidth(2));

    const QPoint before = frozen->pos();
    browser.horizontalScrollBar()->setValue(browser.horizontalScrollBar()->maximum());
    ASSERT_GT(browser.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(frozen->pos(), before);
    EXPECT_EQ(frozen->columnViewportPosition(0), 0);

    // Selecting through the overlay selects in the list.
    Select({"a.odt", "b.odt"});
    EXPECT_TRUE(frozen->selectionModel()->isRowSelected(1, {}));

    // Single view: one name column as wide as the list, one row selected, nothing frozen.
    Child<QCheckBox>("singleViewBox")->click();
    ASSERT_EQ(browser.ColCount(), 1);
    EXPECT_EQ(browser.GetColumnId(0), COL_NAME);
    EXPECT_EQ(browser.columnWidth(0), browser.viewport()->width());
    EXPECT_EQ(browser.GetSelectedRowCount(), 1);  // the first of the two stays
    EXPECT_FALSE(frozen->isVisible());
    Child<QCheckBox>("singleViewBox")->click();
    EXPECT_EQ(browser.selectionMode(), QAbstractItemView::ExtendedSelection);

    Working().frozenColumns = 0;
    browser.InsertColumns();
    EXPECT_FALSE(frozen->isVisible());
}
