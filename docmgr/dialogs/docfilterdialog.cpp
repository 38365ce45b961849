// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/docfilterdialog.h"
#include "docmgr/manager/docmanager.h"

struct DocFilterDialog::Impl {};

DocFilterDialog::DocFilterDialog(QWidget* parent, ImplDocConfig*, unsigned short) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocFilterDialog::~DocFilterDialog() = default;

