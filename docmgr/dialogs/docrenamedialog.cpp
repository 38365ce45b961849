// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/docrenamedialog.h"
#include "docmgr/manager/docmanager.h"

struct DocRenameDialog::Impl {};

DocRenameDialog::DocRenameDialog(DocManager* parent) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocRenameDialog::~DocRenameDialog() = default;
unsigned DocRenameDialog::GetRenameCount() const { return 0; }
