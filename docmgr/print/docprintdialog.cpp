#include "docmgr/print/docprintdialog.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "docmgr/ui/fileoptext.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/print/doclistprinter.h"
#include "docmgr/print/docprintingdlg.h"
#include "docmgr/view/docbrowser.h"

struct DocPrintDialog::Impl {
    explicit Impl(DocBrowser& list) : browser(list), printer(QPrinter::HighResolution), listPrinter(list, printer) {}

    DocBrowser& browser;
    QLabel* columnLabel = new QLabel(DialogText(DLG_PRINT, PRINT_COLUMNS_LABEL));
    QListWidget* columnList = new QListWidget;
    QPushButton* okButton = new QPushButton(DialogText(DLG_PRINT, CTL_OK));
    QPushButton* cancelButton = new QPushButton(DialogText(DLG_PRINT, CTL_CANCEL));
    QPushButton* printerButton = new QPushButton(DialogText(DLG_PRINT, PRINT_PRINTER));
    QPushButton* fontButton = new QPushButton(DialogText(DLG_PRINT, PRINT_FONT));
    QCheckBox* landscapeBox = new QCheckBox(DialogText(DLG_PRINT, PRINT_LANDSCAPE));
    QLabel* fitLabel = new QLabel;
    QPrinter printer;  // the system's default printer
    DocListPrinter listPrinter;

    QSet<QString> SelectedTitles() const
    {
        QSet<QString> titles;
        for (const QListWidgetItem* item : columnList->selectedItems())
            titles.insert(item->text());
        return titles;
    }
};

DocPrintDialog::DocPrintDialog(QWidget* parent, DocBrowser& browser)
    : QDialog(parent), d(std::make_unique<Impl>(browser))
{
    setWindowTitle(DialogText(DLG_PRINT));
    d->columnLabel->setObjectName(QStringLiteral("columnLabel"));
    d->columnList->setObjectName(QStringLiteral("columnList"));
    d->okButton->setObjectName(QStringLiteral("okButton"));
    d->cancelButton->setObjectName(QStringLiteral("cancelButton"));
    d->printerButton->setObjectName(QStringLiteral("printerButton"));
    d->fontButton->setObjectName(QStringLiteral("fontButton"));
    d->landscapeBox->setObjectName(QStringLiteral("landscapeBox"));
    d->fitLabel->setObjectName(QStringLiteral("fitLabel"));
    d->fitLabel->setWordWrap(true);
    d->columnLabel->setBuddy(d->columnList);
    d->columnList->setSelectionMode(QAbstractItemView::MultiSelection);
    d->okButton->setDefault(true);
    // Columns are as wide as their longest text counted in letters "X", with no gap
    // between them. In a font whose letters are narrower than "X" on average the longest
    // texts still leave room before the next column; a fixed font would run them together.
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSize(10);
    d->listPrinter.SetFont(font);

    for (unsigned short pos = 0; pos < browser.ColCount(); ++pos) {
        const std::string title = browser.GetColumnTitle(browser.GetColumnId(pos));
        auto* item = new QListWidgetItem(QString::fromStdString(title), d->columnList);
        item->setSelected(true);
    }
    const QFontMetrics metrics = d->columnList->fontMetrics();
    d->columnList->setMinimumSize(metrics.averageCharWidth() * 30, metrics.height() * 14);

    LayOutControls();

    connect(d->columnList, &QListWidget::itemSelectionChanged, this, &DocPrintDialog::SelectHdl);
    connect(d->okButton, &QPushButton::clicked, this, &DocPrintDialog::OkHdl);
    connect(d->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(d->printerButton, &QPushButton::clicked, this, &DocPrintDialog::PrintSettingsHdl);
    connect(d->fontButton, &QPushButton::clicked, this, &DocPrintDialog::FontSettingsHdl);
    connect(d->landscapeBox, &QCheckBox::toggled, this, [this](bool landscape) {
        d->printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
        ShowFit();
    });
    SelectHdl();
}

DocPrintDialog::~DocPrintDialog() = default;

void DocPrintDialog::LayOutControls()
{
    // The column list with the fit warning below it; the buttons beside it, OK level
    // with the list's top.
    auto* listLayout = new QVBoxLayout;
    listLayout->addWidget(d->columnLabel);
    listLayout->addWidget(d->columnList, 1);
    listLayout->addWidget(d->fitLabel);
    auto* buttons = new QVBoxLayout;
    buttons->addSpacing(d->columnLabel->sizeHint().height());
    buttons->addWidget(d->okButton);
    buttons->addWidget(d->cancelButton);
    buttons->addSpacing(d->okButton->sizeHint().height() / 2);
    buttons->addWidget(d->printerButton);
    buttons->addWidget(d->fontButton);
    buttons->addWidget(d->landscapeBox);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(listLayout, 1);
    layout->addLayout(buttons);
}

QPrinter* DocPrintDialog::GetPrinter() const
{
    return &d->printer;
}
QFont DocPrintDialog::GetPrintFont() const
{
    return d->listPrinter.GetFont();
}
void DocPrintDialog::SetPrintFont(const QFont& font)
{
    d->listPrinter.SetFont(font);
    ShowFit();
}
bool DocPrintDialog::StartJob(const QString& name)
{
    return d->listPrinter.StartJob(name);
}
void DocPrintDialog::EndJob()
{
    d->listPrinter.EndJob();
}

bool DocPrintDialog::PrintPage(unsigned short page) const
{
    return d->listPrinter.PrintPage(page, d->SelectedTitles());
}

void DocPrintDialog::SelectHdl()
{
    d->okButton->setEnabled(!d->columnList->selectedItems().isEmpty());
    ShowFit();
}

int DocPrintDialog::FittingColumns() const
{
    return d->listPrinter.FittingColumns(d->SelectedTitles());
}

void DocPrintDialog::ShowFit()
{
    // Columns beyond the page's right edge would be cut off without a word: say so before
    // printing, while a narrower font or landscape can still help.
    const int chosen = int(d->columnList->selectedItems().size());
    const int fitting = chosen == 0 ? 0 : FittingColumns();
    d->fitLabel->setText(DialogText(DLG_PRINT, PRINT_FIT_WARNING).arg(fitting).arg(chosen));
    d->fitLabel->setVisible(chosen > 0 && fitting < chosen);
    d->landscapeBox->blockSignals(true);
    d->landscapeBox->setChecked(d->printer.pageLayout().orientation() == QPageLayout::Landscape);
    d->landscapeBox->blockSignals(false);
}

void DocPrintDialog::PrintSettingsHdl()
{
    QPrintDialog printDialog(&d->printer, this);
    printDialog.setObjectName(QStringLiteral("printSetupDialog"));
    printDialog.exec();
    ShowFit();  // another paper or orientation
}

void DocPrintDialog::FontSettingsHdl()
{
    QFontDialog fontDialog(d->listPrinter.GetFont(), this);
    fontDialog.setObjectName(QStringLiteral("fontDialog"));
    if (fontDialog.exec() == QDialog::Accepted)
        d->listPrinter.SetFont(fontDialog.selectedFont());
    ShowFit();
}

void DocPrintDialog::OkHdl()
{
    if (!StartJob(QString::fromStdString(ResString(STR_PRINT_JOB)))) {
        done(0);
        return;
    }
    {
        ScopedWaitCursor wait;
        unsigned short page = 1;
        while (PrintPage(page) && page < 0xFFFF)
            ++page;
        EndJob();
    }
    DocPrintingDlg progress(this, &d->printer);
    progress.exec();
    done(0);
}
