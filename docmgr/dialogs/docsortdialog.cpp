// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/docsortdialog.h"
#include "docmgr/manager/docmanager.h"

struct DocSortDialog::Impl {};

DocSortDialog::DocSortDialog(QWidget* parent, ImplDocConfig*, unsigned short) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocSortDialog::~DocSortDialog() = default;

