// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/docpathsdialog.h"
#include "docmgr/manager/docmanager.h"

struct DocPathsDialog::Impl {};

DocPathsDialog::DocPathsDialog(QWidget* parent, ImplDocConfig*, unsigned short) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocPathsDialog::~DocPathsDialog() = default;

