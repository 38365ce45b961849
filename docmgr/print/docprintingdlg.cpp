#include "docmgr/print/docprintingdlg.h"

#include <QFileInfo>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "docmgr/ui/fileoptext.h"

namespace {
constexpr int kPollMs = 2000;

// The printer's name; a printer that writes a file is named by that file.
QString PrinterName(const QPrinter& printer)
{
    if (!printer.printerName().isEmpty())
        return printer.printerName();
    return QFileInfo(printer.outputFileName()).fileName();
}
}  // namespace

DocPrintingDlg::DocPrintingDlg(QWidget* parent, QPrinter* printer)
    : QDialog(parent), printer_(printer), messageLabel_(new QLabel(DialogText(DLG_PRINTING, PRINTING_MESSAGE))),
      printerLabel_(new QLabel), cancelButton_(new QPushButton(DialogText(DLG_PRINTING, CTL_CANCEL))),
      timer_(new QTimer(this))
{
    setWindowTitle(DialogText(DLG_PRINTING));
    messageLabel_->setObjectName(QStringLiteral("messageLabel"));
    printerLabel_->setObjectName(QStringLiteral("printerLabel"));
    cancelButton_->setObjectName(QStringLiteral("cancelButton"));
    timer_->setObjectName(QStringLiteral("pollTimer"));
    printerLabel_->setText(PrinterName(*printer_));
    QFont bold = printerLabel_->font();
    bold.setBold(true);
    printerLabel_->setFont(bold);
    printerLabel_->setAlignment(Qt::AlignCenter);
    messageLabel_->setAlignment(Qt::AlignCenter);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(messageLabel_);
    layout->addWidget(printerLabel_);
    layout->addSpacing(messageLabel_->sizeHint().height() / 2);
    layout->addWidget(cancelButton_, 0, Qt::AlignCenter);

    connect(cancelButton_, &QPushButton::clicked, this, &DocPrintingDlg::AbortPrintingHdl);
    connect(timer_, &QTimer::timeout, this, &DocPrintingDlg::FinishPrintHdl);
    timer_->setInterval(kPollMs);
    timer_->start();
}

DocPrintingDlg::~DocPrintingDlg() = default;

void DocPrintingDlg::reject()
{
    AbortPrintingHdl();
}

void DocPrintingDlg::FinishPrintHdl()
{
    if (printer_->printerState() == QPrinter::Active)
        return;
    timer_->stop();
    done(0);
}

void DocPrintingDlg::AbortPrintingHdl()
{
    timer_->stop();
    printer_->abort();
    done(0);
}
