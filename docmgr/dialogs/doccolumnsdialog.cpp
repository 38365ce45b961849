// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/doccolumnsdialog.h"
#include "docmgr/manager/docmanager.h"

struct DocColumnsDialog::Impl {};

DocColumnsDialog::DocColumnsDialog(QWidget* parent, ImplDocConfig*, unsigned short) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocColumnsDialog::~DocColumnsDialog() = default;

