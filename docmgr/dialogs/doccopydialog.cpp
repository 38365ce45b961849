#include "docmgr/dialogs/doccopydialog.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/tools/docfileops.h"
#include "docmgr/dialogs/docfolderdialog.h"
#include "docmgr/ui/fileoptext.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/tools/fsutil.h"

namespace {
constexpr unsigned short kNoEntry = 0xFFFF;

// A failure message in the middle of the wait: the box gets the ordinary pointer, the
// wait pointer comes back when it is closed.
void TellDuringWait(QWidget* parent, const std::string& text, int error)
{
    QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    DocInfoBox(parent, text, DocErrorText(error));
    QGuiApplication::restoreOverrideCursor();
}
}  // namespace

struct DocCopyDialog::Impl {
    std::vector<std::string> documents;
    std::vector<std::string> resultPaths;
    QLabel* caption = new QLabel(DialogText(DLG_COPY, COPY_TARGET_LABEL));
    DocDirBox* tree = nullptr;
    QGroupBox* frame = new QGroupBox;
    QPushButton* okButton = new QPushButton(DialogText(DLG_COPY, CTL_OK));
    QPushButton* cancelButton = new QPushButton(DialogText(DLG_COPY, CTL_CANCEL));
    QPushButton* folderButton = new QPushButton(DialogText(DLG_COPY, COPY_NEW_FOLDER));
    QCheckBox* moveBox = new QCheckBox(DialogText(DLG_COPY, COPY_MOVE));
    unsigned short doneCount = 0;
    fileundo::Step undoStep;

    // Records that `from` now stands (also) at `to`.
    void Done(fileundo::ActionKind kind, const std::string& from, const std::string& to)
    {
        ++doneCount;
        if (const auto stamp = fileundo::StampOf(to))
            undoStep.actions.push_back({kind, from, to, *stamp, {}, {}});
    }

    std::string SelectedDir() const { return tree->GetDir(tree->GetSelectedPos()); }
};

DocCopyDialog::DocCopyDialog(QWidget* parent, std::vector<std::string> documents)
    : QDialog(parent), d(std::make_unique<Impl>())
{
    d->documents = std::move(documents);
    d->tree = new DocDirBox(nullptr, nullptr);
    setWindowTitle(DialogText(DLG_COPY));
    d->caption->setObjectName(QStringLiteral("caption"));
    d->tree->setObjectName(QStringLiteral("directoryTree"));
    d->tree->SetEnterOpens(false);  // Enter on the chosen folder copies into it
    d->frame->setObjectName(QStringLiteral("frame"));
    d->okButton->setObjectName(QStringLiteral("okButton"));
    d->cancelButton->setObjectName(QStringLiteral("cancelButton"));
    d->folderButton->setObjectName(QStringLiteral("folderButton"));
    d->moveBox->setObjectName(QStringLiteral("moveBox"));
    d->caption->setBuddy(d->tree);
    d->tree->setMinimumSize(d->tree->fontMetrics().averageCharWidth() * 55, d->tree->fontMetrics().height() * 16);
    d->okButton->setDefault(true);

    auto* frameLayout = new QVBoxLayout(d->frame);
    frameLayout->addWidget(d->caption);
    frameLayout->addWidget(d->tree, 1);
    frameLayout->addWidget(d->moveBox);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(d->okButton);
    buttons->addWidget(d->cancelButton);
    buttons->addSpacing(d->okButton->sizeHint().height() / 2);
    buttons->addWidget(d->folderButton);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(d->frame, 1);
    layout->addLayout(buttons);

    // Start in the folder of the first document rather than at the root: the user moves
    // from there to a neighbour far more often than from "/".
    if (const std::string* first = d->documents.empty() ? nullptr : &d->documents.front())
        d->tree->SelectDir(fsutil::DirName(*first));

    connect(d->okButton, &QPushButton::clicked, this, &DocCopyDialog::OKHdl);
    connect(d->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(d->folderButton, &QPushButton::clicked, this, &DocCopyDialog::FolderHdl);
    connect(d->tree, &DocDirBox::DirSelected, this, &DocCopyDialog::DirectoriesHdl);
    DirectoriesHdl();
}

DocCopyDialog::~DocCopyDialog() = default;

unsigned short DocCopyDialog::GetDoneCount() const
{
    return d->doneCount;
}

const std::vector<std::string>& DocCopyDialog::GetResultPaths() const
{
    return d->resultPaths;
}

const fileundo::Step& DocCopyDialog::GetUndoStep() const
{
    return d->undoStep;
}

void DocCopyDialog::DirectoriesHdl()
{
    const bool selected = d->tree->GetSelectedPos() != kNoEntry;
    d->okButton->setEnabled(selected);
    d->folderButton->setEnabled(selected);
}

void DocCopyDialog::OKHdl()
{
    {
        ScopedWaitCursor wait;
        const std::string target = d->SelectedDir();
        const bool move = d->moveBox->isChecked();
        d->resultPaths = d->documents;
        for (std::string& source : d->resultPaths) {
            const std::string name = fsutil::FileName(source);
            if (move) {
                if (const int error = docfileops::MoveInto(source, target)) {
                    TellDuringWait(this, JoinedMessage(STR_MOVE_FAILED, name, STR_MOVE_FAILED_END), error);
                } else {
                    d->Done(fileundo::ActionKind::Move, source, fsutil::Join(target, name));
                    source = fsutil::Join(target, name);
                }
            } else {
                if (const int error = docfileops::CopyInto(source, target))
                    TellDuringWait(this, JoinedMessage(STR_COPY_FAILED, name, STR_COPY_FAILED_END), error);
                else
                    d->Done(fileundo::ActionKind::Copy, source, fsutil::Join(target, name));
            }
        }
    }
    done(1);
}

void DocCopyDialog::FolderHdl()
{
    auto folderDialog = std::make_unique<DocFolderDialog>(this, d->SelectedDir());
    if (folderDialog->exec() != 1)
        return;
    const std::string folder = folderDialog->GetFolder();
    if (folder.empty())
        return;
    d->tree->ReadDirs();
    d->tree->SelectDir(folder);
}
