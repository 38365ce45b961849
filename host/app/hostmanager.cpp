#include "host/app/hostmanager.h"

#include <QMessageBox>

#include "host/app/docpropertiesdialog.h"
#include "host/readers/docedit.h"

std::unique_ptr<DocInfo> HostManager::CreateDocInfo(const std::string& file)
{
    return readAhead_.Take(file);
}

void HostManager::ReadAhead(const std::vector<std::string>& files)
{
    readAhead_.Start(files);
}

bool HostManager::ChangeDocInfo(QWidget* parent, const std::string& file)
{
    DocPropertiesDialog dialog(parent, file, GetInfoLabels());
    if (!dialog.IsLoaded()) {
        QMessageBox::warning(parent, dialog.windowTitle(),
                             tr("The document information of \"%1\" cannot be changed: "
                                "this program cannot read it as a document.")
                                 .arg(QString::fromStdString(file)));
        return false;
    }
    return dialog.exec() == QDialog::Accepted;
}

DocWriteResult HostManager::WriteDocInfo(const std::string& file, const DocInfoEdit& edit, bool checkOnly,
                                         std::string& reason)
{
    return WriteDocEdit(file, edit, GetInfoLabels(), checkOnly, reason) ? DocWriteResult::Written
                                                                        : DocWriteResult::Refused;
}
