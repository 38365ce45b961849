#include "docmgr/dialogs/docrenamedialog.h"

#include <QGridLayout>
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

struct DocRenameDialog::Impl {
    QLabel* oldNameLabel = new QLabel(DialogText(DLG_RENAME, RENAME_CURRENT_LABEL));
    QLineEdit* oldNameEdit = new QLineEdit;
    QLabel* newNameLabel = new QLabel(DialogText(DLG_RENAME, RENAME_NEW_LABEL));
    QLineEdit* newNameEdit = new QLineEdit;
    QGroupBox* frame = new QGroupBox;
    QPushButton* okButton = new QPushButton(DialogText(DLG_RENAME, CTL_OK));
    QPushButton* cancelButton = new QPushButton(DialogText(DLG_RENAME, CTL_CANCEL));
    std::string document;
    unsigned renameCount = 0;
    std::string newPath;
};

DocRenameDialog::DocRenameDialog(QWidget* parent, const std::string& document)
    : QDialog(parent), d(std::make_unique<Impl>())
{
    d->document = document;
    const QString name = QString::fromStdString(fsutil::FileName(d->document));

    setWindowTitle(DialogText(DLG_RENAME));
    d->oldNameLabel->setObjectName(QStringLiteral("oldNameLabel"));
    d->oldNameEdit->setObjectName(QStringLiteral("oldNameEdit"));
    d->newNameLabel->setObjectName(QStringLiteral("newNameLabel"));
    d->newNameEdit->setObjectName(QStringLiteral("newNameEdit"));
    d->frame->setObjectName(QStringLiteral("frame"));
    d->okButton->setObjectName(QStringLiteral("okButton"));
    d->cancelButton->setObjectName(QStringLiteral("cancelButton"));
    d->oldNameEdit->setText(name);
    d->oldNameEdit->setReadOnly(true);
    d->newNameEdit->setText(name);
    d->newNameLabel->setBuddy(d->newNameEdit);
    d->newNameEdit->setMinimumWidth(d->newNameEdit->fontMetrics().averageCharWidth() * 40);
    // Typing replaces the name but keeps the extension, which is rarely meant to change.
    const qsizetype dot = name.lastIndexOf(u'.');
    d->newNameEdit->setSelection(0, int(dot > 0 ? dot : name.size()));
    d->okButton->setDefault(true);

    auto* frameLayout = new QGridLayout(d->frame);
    frameLayout->addWidget(d->oldNameLabel, 0, 0);
    frameLayout->addWidget(d->oldNameEdit, 0, 1);
    frameLayout->addWidget(d->newNameLabel, 1, 0);
    frameLayout->addWidget(d->newNameEdit, 1, 1);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(d->okButton);
    buttons->addWidget(d->cancelButton);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(d->frame, 1);
    layout->addLayout(buttons);
    d->newNameEdit->setFocus();

    connect(d->newNameEdit, &QLineEdit::textChanged, this, &DocRenameDialog::ModifyHdl);
    connect(d->okButton, &QPushButton::clicked, this, &DocRenameDialog::OKHdl);
    connect(d->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    ModifyHdl();
}

DocRenameDialog::~DocRenameDialog() = default;

unsigned DocRenameDialog::GetRenameCount() const
{
    return d->renameCount;
}

void DocRenameDialog::ModifyHdl()
{
    d->okButton->setEnabled(!d->newNameEdit->text().isEmpty());
}

void DocRenameDialog::OKHdl()
{
    const QString newName = d->newNameEdit->text();
    if (newName != d->oldNameEdit->text()) {
        // A name with a separator would move the file elsewhere; it is refused like a
        // rename that fails.
        if (const int error = docfileops::RenameTo(d->document, newName.toStdString()))
            DocInfoBox(this, JoinedMessage(STR_RENAME_FAILED, fsutil::FileName(d->document), STR_RENAME_FAILED_END),
                       DocErrorText(error));
        else {
            ++d->renameCount;
            d->newPath = fsutil::Join(fsutil::DirName(d->document), newName.toStdString());
        }
    }
    done(1);
}

std::string DocRenameDialog::GetNewPath() const
{
    return d->renameCount ? d->newPath : d->document;
}
