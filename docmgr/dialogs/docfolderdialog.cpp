#include "docmgr/dialogs/docfolderdialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "docmgr/tools/docfileops.h"
#include "docmgr/ui/fileoptext.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/fsutil.h"

DocFolderDialog::DocFolderDialog(QWidget* parent, const std::string& base)
    : QDialog(parent), nameLabel_(new QLabel(DialogText(DLG_NEW_FOLDER, NEW_FOLDER_NAME_LABEL))),
      nameEdit_(new QLineEdit), frame_(new QGroupBox), okButton_(new QPushButton(DialogText(DLG_NEW_FOLDER, CTL_OK))),
      cancelButton_(new QPushButton(DialogText(DLG_NEW_FOLDER, CTL_CANCEL))), base_(base)
{
    setWindowTitle(DialogText(DLG_NEW_FOLDER) + QStringLiteral(" [") + QString::fromStdString(base_) +
                   QStringLiteral("]"));
    nameLabel_->setObjectName(QStringLiteral("nameLabel"));
    nameEdit_->setObjectName(QStringLiteral("nameEdit"));
    frame_->setObjectName(QStringLiteral("frame"));
    okButton_->setObjectName(QStringLiteral("okButton"));
    cancelButton_->setObjectName(QStringLiteral("cancelButton"));
    nameLabel_->setBuddy(nameEdit_);
    nameEdit_->setMinimumWidth(nameEdit_->fontMetrics().averageCharWidth() * 40);
    okButton_->setDefault(true);

    auto* frameLayout = new QVBoxLayout(frame_);
    frameLayout->addWidget(nameLabel_);
    frameLayout->addWidget(nameEdit_);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(okButton_);
    buttons->addWidget(cancelButton_);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frame_, 1);
    layout->addLayout(buttons);

    connect(nameEdit_, &QLineEdit::textChanged, this, &DocFolderDialog::ModifyHdl);
    connect(okButton_, &QPushButton::clicked, this, &DocFolderDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    ModifyHdl();
}

DocFolderDialog::~DocFolderDialog() = default;

void DocFolderDialog::ModifyHdl()
{
    okButton_->setEnabled(!nameEdit_->text().isEmpty());
}

void DocFolderDialog::OKHdl()
{
    const std::string name = nameEdit_->text().toStdString();
    // A name that climbs out of the base or starts at the root is refused like a folder
    // that cannot be made.
    if (const int error = docfileops::MakeFolder(base_, name))
        DocInfoBox(this, JoinedMessage(STR_FOLDER_FAILED, base_ + name, STR_FOLDER_FAILED_END), DocErrorText(error));
    done(1);
}

std::string DocFolderDialog::GetFolder() const
{
    const std::string name = nameEdit_->text().toStdString();
    if (!docfileops::StaysBelow(name))
        return {};
    const std::string folder = docfileops::FolderPath(base_, name);
    return fsutil::IsDirectory(folder) ? folder : std::string();
}
