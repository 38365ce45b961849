#pragma once
// A live manager over a directory of documents, and print dialogs that write PDF files.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QListWidget>
#include <QPageSize>
#include <QPrinter>
#include <cstdio>
#include <memory>
#include <set>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/print/docprintdialog.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/managerloop.h"
#include "tests/support/tempdir.h"
#include "tests/support/testhost.h"

class PrintTest : public ::testing::Test {
protected:
    PrintTest()
    {
        SetDocBoxAnswerer([](const QString&, bool) { return RET_YES; });
    }
    ~PrintTest() override { SetDocBoxAnswerer({}); }

    // Runs `body` inside the manager; the list is sorted by file name.
    void InManager(const std::function<void()>& body)
    {
        managerloop::RunInManager(host, [&] {
            host.GetSettings()->WorkingGroup().sortColumnId = 1;
            host.GetSettings()->WorkingGroup().sortAscending = true;
            host.GetBrowser()->SortFiles(false);
            body();
        });
    }

    // Documents doc00.odt ... in the listed directory, collected again.
    void MakeDocs(int count)
    {
        for (int i = 0; i < count; ++i) {
            char name[32];
            std::snprintf(name, sizeof name, "docs/doc%02d.odt", i);
            dir.MakeFile(name, "x");
        }
        host.CollectFiles();
    }

    // A print dialog on the manager's list that writes `pdf` on A4 sheets, in its own
    // fixed font at `points`.
    std::unique_ptr<DocPrintDialog> MakeDialog(int points)
    {
        auto dialog = std::make_unique<DocPrintDialog>(&host, *host.GetBrowser());
        QPrinter* printer = dialog->GetPrinter();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QString::fromStdString(pdf));
        printer->setPageSize(QPageSize(QPageSize::A4));
        // The table starts at the printable area; without margins that is the sheet's corner.
        printer->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
        QFont font = dialog->GetPrintFont();
        font.setPointSize(points);
        dialog->SetPrintFont(font);
        return dialog;
    }

    static long LinesPerPage(const DocPrintDialog& dialog)
    {
        return dialog.GetPrinter()->height() /
               QFontMetrics(dialog.GetPrintFont(), dialog.GetPrinter()).height();
    }

    // Width of one character of the printing font, in points.
    static double CharWidthPt(const DocPrintDialog& dialog)
    {
        const QPrinter* printer = dialog.GetPrinter();
        const int pixels = QFontMetrics(dialog.GetPrintFont(), printer).horizontalAdvance(QLatin1Char('X'));
        return pixels * 72.0 / printer->resolution();
    }

    // Selects exactly the columns with these titles.
    static void SelectColumns(DocPrintDialog& dialog, const std::set<QString>& titles)
    {
        auto* list = dialog.findChild<QListWidget*>("columnList");
        for (int i = 0; i < list->count(); ++i)
            list->item(i)->setSelected(titles.count(list->item(i)->text()) > 0);
    }

    // Prints every page of a job; the number of pages printed.
    static int PrintAll(DocPrintDialog& dialog)
    {
        EXPECT_TRUE(dialog.StartJob("list"));
        int pages = 0;
        while (dialog.PrintPage(static_cast<unsigned short>(pages + 1)))
            ++pages;
        dialog.EndJob();
        return pages;
    }

    static QString Title(uint16_t id) { return QString::fromStdString(ResString(id)); }

    ResModule resources{Language::English};
    TempDir dir;
    std::string docs = dir.MakeDir("docs");
    std::string pdf = dir.PathOf("list.pdf");
    Config config{dir.PathOf("manager.cfg")};
    TestHost host{nullptr, &config, docs, false};
};
