// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/docgroupsdialog.h"
#include "docmgr/manager/docmanager.h"

struct DocGroupsDialog::Impl {};

DocGroupsDialog::DocGroupsDialog(DocManager* parent) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocGroupsDialog::~DocGroupsDialog() = default;

