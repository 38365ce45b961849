// PLACEHOLDER: replaced by the real list printing.
#include "docmgr/print/docprintdialog.h"
#include "docmgr/view/docbrowser.h"

struct DocPrintDialog::Impl {};

DocPrintDialog::DocPrintDialog(QWidget* parent, DocBrowser&) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocPrintDialog::~DocPrintDialog() = default;
bool DocPrintDialog::PrintPage(unsigned short) const { return false; }
QPrinter* DocPrintDialog::GetPrinter() const { return nullptr; }
