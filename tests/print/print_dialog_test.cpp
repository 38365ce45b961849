// The print dialog's controls, a whole print run through OK, and the progress dialog.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <filesystem>

#include "docmgr/print/docprintingdlg.h"
#include "tests/print/pdfwords.h"
#include "tests/print/printfixture.h"

namespace {

TEST_F(PrintTest, EveryColumnStartsSelectedAndOkNeedsOne)
{
    InManager([&] {
        auto dialog = MakeDialog(10);
        auto* list = dialog->findChild<QListWidget*>("columnList");
        auto* ok = dialog->findChild<QPushButton*>("okButton");
        ASSERT_TRUE(list && ok);
        DocBrowser& browser = *host.GetBrowser();
        ASSERT_EQ(list->count(), browser.ColCount());
        for (int i = 0; i < list->count(); ++i) {
            EXPECT_EQ(list->item(i)->text().toStdString(),
                      browser.GetColumnTitle(browser.GetColumnId(static_cast<unsigned short>(i))));
            EXPECT_TRUE(list->item(i)->isSelected()) << i;
        }
        EXPECT_TRUE(ok->isEnabled());
        list->clearSelection();
        EXPECT_FALSE(ok->isEnabled());
        list->item(3)->setSelected(true);
        EXPECT_TRUE(ok->isEnabled());
    });
}

TEST_F(PrintTest, TheDialogSaysWhenNotAllChosenColumnsFitAndOffersLandscape)
{
    InManager([&] {
        auto dialog = MakeDialog(40);  // large letters: few columns fit across A4
        auto* list = dialog->findChild<QListWidget*>("columnList");
        auto* fit = dialog->findChild<QLabel*>("fitLabel");
        auto* landscape = dialog->findChild<QCheckBox*>("landscapeBox");
        ASSERT_TRUE(list && fit && landscape);
        const int portrait = dialog->FittingColumns();
        EXPECT_LT(portrait, list->count());
        EXPECT_FALSE(fit->isHidden());
        EXPECT_TRUE(fit->text().startsWith(QString("Only %1 of the %2 ").arg(portrait).arg(list->count())))
            << fit->text().toStdString();

        landscape->setChecked(true);
        EXPECT_EQ(dialog->GetPrinter()->pageLayout().orientation(), QPageLayout::Landscape);
        EXPECT_GT(dialog->FittingColumns(), portrait);

        list->clearSelection();
        list->item(0)->setSelected(true);
        EXPECT_EQ(dialog->FittingColumns(), 1);
        EXPECT_TRUE(fit->isHidden());
    });
}

TEST_F(PrintTest, OkPrintsTheListAsAJobAndWaitsForThePrinter)
{
    if (!pdfwords::Available())
        GTEST_SKIP() << "poppler-utils not installed";
    InManager([&] {
        MakeDocs(3);
        auto dialog = MakeDialog(10);
        SelectColumns(*dialog, {Title(15700)});
        // Runs the whole job and the progress dialog, which closes once the printer is idle.
        dialog->findChild<QPushButton*>("okButton")->click();
        EXPECT_EQ(dialog->result(), 0);
    });
    ASSERT_EQ(pdfwords::PageCount(pdf), 1);
    EXPECT_EQ(pdfwords::Info(pdf, "Title"), ResString(15743));
    EXPECT_EQ(pdfwords::Lines(pdfwords::Words(pdf), 1),
              (std::vector<std::string>{"File name", "doc00.odt", "doc01.odt", "doc02.odt"}));
}

TEST_F(PrintTest, APrinterThatCannotStartClosesTheDialogWithoutPrinting)
{
    pdf = dir.PathOf("missing/folder/list.pdf");
    InManager([&] {
        MakeDocs(2);
        auto dialog = MakeDialog(10);
        dialog->findChild<QPushButton*>("okButton")->click();
        EXPECT_EQ(dialog->result(), 0);
        EXPECT_FALSE(dialog->StartJob("again"));
        EXPECT_FALSE(dialog->PrintPage(1));
    });
    EXPECT_FALSE(std::filesystem::exists(pdf));
}

TEST_F(PrintTest, TheProgressNamesThePrinterAndCancelEndsIt)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf));
    DocPrintingDlg progress(nullptr, &printer);
    EXPECT_EQ(progress.findChild<QLabel*>("printerLabel")->text(), "list.pdf");
    progress.setResult(7);
    progress.findChild<QPushButton*>("cancelButton")->click();
    EXPECT_EQ(progress.result(), 0);
}

}  // namespace
