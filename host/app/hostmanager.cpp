#include "host/app/hostmanager.h"

#include <QMessageBox>
#include <QTimer>
#include <iostream>

#include "host/app/docpropertiesdialog.h"
#include "host/readers/docedit.h"

HostManager::~HostManager()
{
    reader_.Flush();
}

void HostManager::UseCache()
{
    reader_.SetCache(std::make_unique<DocCache>(DocCache::DefaultFile(),
                                                [](const std::string& line) { std::cerr << line << '\n'; }));
    // The listing runs without returning to the event loop: back there, it has ended, and
    // its writes are committed so that other processes may write again.
    reader_.OnFirstWrite([this] { QTimer::singleShot(0, this, [this] { reader_.Flush(); }); });
}

std::unique_ptr<DocInfo> HostManager::CreateDocInfo(const std::string& file)
{
    return reader_.Take(file);
}

void HostManager::ReadAhead(const std::vector<std::string>& files)
{
    reader_.ReadAhead(files);
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
