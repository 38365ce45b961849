// The print dialog on a live manager: its controls, the column widths it prints with, one
// whole job to a PDF printer read back from the file, and the progress dialog; the page
// plan: rows per page and the columns that fit across it.
#include <QFontMetrics>
#include <QPageSize>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <filesystem>

#include "docmgr/print/doclistprinter.h"
#include "docmgr/print/docprintdialog.h"
#include "docmgr/print/docprintingdlg.h"
#include "docmgr/print/pageplan.h"
#include "docmgr/records/docfields.h"
#include "tests/support/managerfixture.h"
#include "resources/resids.h"

// The output of one of poppler's tools (pdfinfo, pdftotext) on `pdf`; empty when it fails.
static QString Poppler(const char* program, QStringList arguments, const std::string& pdf)
{
    QProcess process;
    arguments << QString::fromStdString(pdf);
    if (QLatin1String(program) == QLatin1String("pdftotext"))
        arguments << "-";
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The lines of text of each page, their words joined by one blank.
static std::vector<std::vector<std::string>> PdfPages(const std::string& pdf)
{
    std::vector<std::vector<std::string>> pages;
    const QStringList texts = Poppler("pdftotext", {"-layout"}, pdf).split('\f');
    for (qsizetype p = 0; p + 1 < texts.size(); ++p) {  // each page ends with a form feed
        pages.emplace_back();
        for (const QString& line : texts[p].split('\n'))
            if (!line.trimmed().isEmpty())
                pages.back().push_back(line.simplified().toStdString());
    }
    return pages;
}

class PrintTest : public ManagerTest {
protected:
    // `count` documents doc00.odt ..., the list sorted by file name, and a print dialog on
    // it that writes `pdf` on A4 sheets without margins, in its own fixed font at `points`.
    std::unique_ptr<DocPrintDialog> Open(int count, int points)
    {
        for (int i = 0; i < count; ++i)
            dir.MakeFile("docs/" + DocName(i), "x");
        WriteDefaultConfig();
        Start(false);
        Working().sortColumnId = COL_NAME;
        Browser().SortFiles(false);
        auto dialog = std::make_unique<DocPrintDialog>(host.get(), Browser());
        QPrinter* printer = dialog->GetPrinter();
        printer->setOutputFileName(QString::fromStdString(pdf));
        printer->setPageSize(QPageSize(QPageSize::A4));
        printer->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
        QFont font = dialog->GetPrintFont();
        font.setPointSize(points);
        dialog->SetPrintFont(font);
        return dialog;
    }
    static std::string DocName(long i) { return QString::asprintf("doc%02ld.odt", i).toStdString(); }

    std::string pdf = dir.PathOf("list.pdf");
};

TEST_F(PrintTest, EveryColumnStartsSelectedOkNeedsOneAndTheDialogSaysWhatFits)
{
    auto dialog = Open(0, 40);  // large letters: few columns fit across A4
    auto* list = In<QListWidget>(*dialog, "columnList");
    auto* ok = In<QPushButton>(*dialog, "okButton");
    auto* fit = In<QLabel>(*dialog, "fitLabel");
    ASSERT_EQ(list->count(), Browser().ColCount());
    EXPECT_EQ(list->item(2)->text().toStdString(), Browser().GetColumnTitle(Browser().GetColumnId(2)));
    EXPECT_EQ(list->selectedItems().size(), list->count());
    const int portrait = dialog->FittingColumns();
    EXPECT_LT(portrait, list->count());
    EXPECT_TRUE(fit->text().startsWith(QString("Only %1 of the %2 ").arg(portrait).arg(list->count()))) << fit->text().toStdString();
    In<QCheckBox>(*dialog, "landscapeBox")->setChecked(true);
    EXPECT_EQ(dialog->GetPrinter()->pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_GT(dialog->FittingColumns(), portrait);

    list->clearSelection();
    EXPECT_FALSE(ok->isEnabled());
    list->item(0)->setSelected(true);
    EXPECT_EQ(dialog->FittingColumns(), 1);
    EXPECT_TRUE(fit->isHidden());
}

TEST_F(PrintTest, ColumnsGoInIdOrderEachAsWideAsItsWidestText)
{
    auto dialog = Open(2, 10);
    DocInfo wide;
    wide.title = std::string(14, 'x');
    wide.author = "Tester";
    host->known["doc01.odt"] = wide;
    std::filesystem::remove(docs + "/.docindex");  // so that the host is asked again
    Impl().CollectFiles();
    Working().columnId = {5, 3, 1, 2, 4, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
    Browser().InsertColumns();
    QSet<QString> titles;
    for (uint16_t id : {STR_COL_CREATED_DATE, STR_COL_TITLE, STR_COL_NAME, STR_COL_AUTHOR})
        titles.insert(QString::fromStdString(ResString(id)));
    const auto widths = DocListPrinter(Browser(), *dialog->GetPrinter()).ColumnWidths(titles);
    // "doc00.odt" over "File name", the long title on the second row, "Author" over "Tester"
    EXPECT_EQ(widths, (std::map<uint16_t, uint16_t>{{1, 9}, {3, 14}, {5, widths.at(5)}, {7, 6}}));
}

TEST_F(PrintTest, NothingIsPrintedWithoutAJobAndTheProgressCancels)
{
    auto dialog = Open(3, 10);
    EXPECT_FALSE(dialog->PrintPage(1)) << "no job running";
    EXPECT_TRUE(dialog->StartJob("list"));
    EXPECT_TRUE(dialog->PrintPage(1));
    EXPECT_FALSE(dialog->PrintPage(2));
    dialog->EndJob();
    EXPECT_FALSE(dialog->PrintPage(1)) << "the job has ended";

    // A printer that cannot start: OK closes the dialog without printing.
    pdf = dir.PathOf("missing/folder/list.pdf");
    dialog->GetPrinter()->setOutputFileName(QString::fromStdString(pdf));
    In<QPushButton>(*dialog, "okButton")->click();
    EXPECT_EQ(dialog->result(), 0);
    EXPECT_FALSE(std::filesystem::exists(pdf));

    // The progress names the printer by its file; cancel ends it.
    DocPrintingDlg progress(nullptr, dialog->GetPrinter());
    EXPECT_EQ(In<QLabel>(progress, "printerLabel")->text(), "list.pdf");
    progress.setResult(7);
    In<QPushButton>(progress, "cancelButton")->click();
    EXPECT_EQ(progress.result(), 0);
}

// The one real print: OK runs the whole job on a PDF printer and its progress dialog.
TEST_F(PrintTest, OkPrintsTheListPageByPageToAPdfPrinter)
{
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "poppler-utils not installed";
    auto dialog = Open(0, 40);
    QPrinter* printer = dialog->GetPrinter();
    printer->setPageMargins(QMarginsF(20, 15, 20, 15), QPageLayout::Millimeter);
    const long lines = printer->height() / QFontMetrics(dialog->GetPrintFont(), printer).height();
    ASSERT_GT(lines, 2);
    for (long i = 0; i < lines; ++i)
        dir.MakeFile("docs/" + DocName(i), "x");
    Impl().CollectFiles();
    Browser().SortFiles(false);
    auto* list = In<QListWidget>(*dialog, "columnList");
    for (int i = 0; i < list->count(); ++i)  // file name and title
        list->item(i)->setSelected(Browser().GetColumnId(uint16_t(i)) == 1 || Browser().GetColumnId(uint16_t(i)) == 3);
    In<QPushButton>(*dialog, "okButton")->click();
    EXPECT_EQ(dialog->result(), 0);

    const auto pages = PdfPages(pdf);
    ASSERT_EQ(pages.size(), 2u);
    ASSERT_EQ(pages[0].size(), size_t(lines));
    EXPECT_EQ(pages[0][1], "doc00.odt doc00.odt");
    const std::string last = DocName(lines - 1);
    EXPECT_EQ(pages[1], (std::vector<std::string>{"File name Title", last + " " + last}));
    const QString title = QRegularExpression::escape(QString::fromStdString(ResString(STR_PRINT_JOB)));
    EXPECT_TRUE(Poppler("pdfinfo", {}, pdf).contains(QRegularExpression("^Title: *" + title + "$", QRegularExpression::MultilineOption)));
    // The header starts in the top left corner of the printable area: 20 mm (56.7 pt)
    // from the left edge, 15 mm (42.5 pt) from the top.
    const auto first = QRegularExpression(R"re(<word xMin="([\d.]+)" yMin="([\d.]+)")re").match(Poppler("pdftotext", {"-bbox"}, pdf));
    ASSERT_TRUE(first.hasMatch());
    EXPECT_NEAR(first.captured(1).toDouble(), 56.7, 1.0);
    EXPECT_GT(first.captured(2).toDouble(), 42.0);
    EXPECT_LT(first.captured(2).toDouble(), 52.0);
}

using pageplan::PageRows;

TEST(PagePlan, EachPageHoldsAllButTheHeaderLineAndAColumnFitsWhenItsWidestTextEndsOnThePage)
{
    const struct {
        unsigned page;
        long lines;
        long rows;
        std::optional<PageRows> expected;
    } table[] = {
        {1, 10, 0, PageRows{0, 0}},  // an empty list prints its header
        {2, 10, 0, std::nullopt},      {1, 10, 5, PageRows{0, 5}}, {1, 10, 20, PageRows{0, 9}},   {2, 10, 20, PageRows{9, 18}},
        {3, 10, 20, PageRows{18, 20}}, {4, 10, 20, std::nullopt},  {3, 10, 18, PageRows{18, 18}},  // an exact fit ends with a header-only page
        {4, 10, 18, std::nullopt},     {0, 10, 5, std::nullopt},                                   // pages count from 1
        {1, 1, 5, std::nullopt},                                                                   // no room for a row
        {1, 0, 5, std::nullopt},
    };
    for (const auto& row : table)
        EXPECT_EQ(pageplan::RowsOnPage(row.page, row.lines, row.rows), row.expected)
            << "page " << row.page << ", " << row.lines << " lines, " << row.rows << " rows";

    const std::map<uint16_t, uint16_t> widths{{1, 10}, {3, 5}, {7, 20}};
    const struct {
        long charWidth, pageWidth;
        int fitting;
    } fits[] = {{1, 35, 3}, {1, 34, 2}, {1, 15, 2}, {2, 29, 1}, {2, 19, 0}, {1, 1000, 3}};
    for (const auto& row : fits)
        EXPECT_EQ(pageplan::FittingColumns(widths, row.charWidth, row.pageWidth), row.fitting) << row.charWidth << " x " << row.pageWidth;
    EXPECT_EQ(pageplan::FittingColumns({}, 1, 10), 0);
}
