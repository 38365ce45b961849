// PLACEHOLDER: replaced by the dialog's real implementation.
#include "docmgr/dialogs/doccopydialog.h"
#include "docmgr/manager/docmanager.h"

struct DocCopyDialog::Impl {};

DocCopyDialog::DocCopyDialog(DocManager* parent) : QDialog(parent), d(std::make_unique<Impl>()) {}
DocCopyDialog::~DocCopyDialog() = default;
unsigned short DocCopyDialog::GetDoneCount() const { return 0; }
