#include "docmgr/dialogs/docpathsdialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/config/pathrules.h"
#include "docmgr/ui/dialoglayout.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/dialogs/docdirbox.h"
#include "docmgr/dialogs/pathentries.h"
#include "docmgr/ui/waitcursor.h"

namespace {
QString Q(const std::string& text)
{
    return QString::fromStdString(text);
}
QString Text(uint16_t local)
{
    return DialogText(DLG_PATHS, local);
}
}  // namespace

DocPathsDialog::DocPathsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group)
    : QDialog(parent), config_(config), group_(group)
{
    BuildControls();
    LayOutControls();

    connect(okButton_, &QPushButton::clicked, this, &DocPathsDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    connect(addButton_, &QPushButton::clicked, this, &DocPathsDialog::AddHdl);
    connect(removeButton_, &QPushButton::clicked, this, &DocPathsDialog::RemoveHdl);
    connect(removeAllButton_, &QPushButton::clicked, this, &DocPathsDialog::RemoveAllHdl);
    connect(includeBox_, &QCheckBox::clicked, this, &DocPathsDialog::IncludeHdl);
    connect(pathList_, &QListWidget::currentRowChanged, this, &DocPathsDialog::PathsHdl);
    connect(dirTree_, &DocDirBox::DirSelected, this, &DocPathsDialog::DirectoriesHdl);

    // Shown entries in stored order; the rest is kept aside with its flag.
    const DocGroupConfig& g = config_->Group(group_);
    pathentries::Entries entries = pathentries::Split(g.paths, g.guis);
    {
        const QSignalBlocker blocker(pathList_);
        for (const std::string& path : entries.shown)
            pathList_->addItem(Q(path));
        pathList_->setCurrentRow(0);
    }
    entries.shown.clear();
    hidden_ = std::move(entries);
    PathsHdl();
    DirectoriesHdl();

    SetTabChain(
        {dirTree_, addButton_, removeButton_, removeAllButton_, pathList_, includeBox_, okButton_, cancelButton_});
    dirTree_->setFocus();
}

void DocPathsDialog::BuildControls()
{
    setObjectName(QStringLiteral("pathsDialog"));
    setWindowTitle(DialogText(DLG_PATHS));
    listCaption_ = Named(new QLabel(Text(PATHS_CHOSEN_LABEL), this), "listCaption");
    pathList_ = Named(new QListWidget(this), "pathList");
    listCaption_->setBuddy(pathList_);
    addButton_ = Named(new QPushButton(Text(PATHS_ADD), this), "addButton");
    removeButton_ = Named(new QPushButton(Text(PATHS_REMOVE), this), "removeButton");
    removeAllButton_ = Named(new QPushButton(Text(PATHS_REMOVE_ALL), this), "removeAllButton");
    treeCaption_ = Named(new QLabel(Text(PATHS_TREE_LABEL), this), "treeCaption");
    dirTree_ = new DocDirBox(this, config_);
    treeCaption_->setBuddy(dirTree_);
    includeBox_ = Named(new QCheckBox(Text(PATHS_INCLUDE_TEXT), this), "includeBox");
    frame_ = Named(new QGroupBox(Text(PATHS_FRAME), this), "frame");
    std::tie(okButton_, cancelButton_) = MakeOkCancel(this, DLG_PATHS);
    for (QPushButton* button : {addButton_, removeButton_, removeAllButton_})
        button->setAutoDefault(false);  // Enter stays with OK
}

void DocPathsDialog::LayOutControls()
{
    // Tree | add, remove, remove all | chosen paths, all inside the frame; OK and
    // cancel at the right.
    auto* frameLayout = new QGridLayout(frame_);
    frameLayout->addWidget(treeCaption_, 0, 0);
    frameLayout->addWidget(dirTree_, 1, 0);
    frameLayout->addLayout(CentredButtonColumn({addButton_, removeButton_, removeAllButton_}), 1, 1);
    frameLayout->addWidget(listCaption_, 0, 2);
    frameLayout->addWidget(pathList_, 1, 2);
    frameLayout->addWidget(includeBox_, 2, 2);
    frameLayout->setColumnStretch(0, 1);
    frameLayout->setColumnStretch(2, 1);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frame_, 1);
    layout->addLayout(ButtonColumn({okButton_, cancelButton_}));
    dirTree_->setMinimumSize(240, 320);
    pathList_->setMinimumSize(240, 320);
}

DocPathsDialog::~DocPathsDialog() = default;

void DocPathsDialog::PathsHdl()
{
    const bool any = pathList_->count() > 0;
    removeButton_->setEnabled(any);
    removeAllButton_->setEnabled(any);
    includeBox_->setEnabled(any);
    const QListWidgetItem* selected = pathList_->currentItem();
    includeBox_->setChecked(any && selected && TestSub(selected->text().toStdString()));
}

void DocPathsDialog::DirectoriesHdl()
{
    const unsigned short pos = dirTree_->GetSelectedPos();
    if (pos == 0xFFFF) {
        addButton_->setEnabled(false);
        return;
    }
    const std::string dir = dirTree_->GetDir(pos);
    bool listed = false;
    for (int i = 0; i < pathList_->count() && !listed; ++i)
        listed = WoutSub(pathList_->item(i)->text().toStdString()) == dir;
    addButton_->setEnabled(!listed);
}

void DocPathsDialog::AddHdl()
{
    const unsigned short pos = dirTree_->GetSelectedPos();
    if (pos == 0xFFFF)
        return;
    {
        const QSignalBlocker blocker(pathList_);
        pathList_->addItem(Q(WoutSub(dirTree_->GetDir(pos))));
        pathList_->setCurrentRow(pathList_->count() - 1);
    }
    PathsHdl();
    addButton_->setEnabled(false);
}

void DocPathsDialog::RemoveHdl()
{
    const int pos = pathList_->currentRow();
    if (pos < 0)
        return;
    {
        const QSignalBlocker blocker(pathList_);
        delete pathList_->takeItem(pos);
        pathList_->setCurrentRow(std::min(pos, pathList_->count() - 1));
    }
    PathsHdl();
    // Enabled even when the tree's directory is still listed.
    addButton_->setEnabled(true);
}

void DocPathsDialog::RemoveAllHdl()
{
    {
        const QSignalBlocker blocker(pathList_);
        pathList_->clear();
    }
    PathsHdl();
    addButton_->setEnabled(true);
}

void DocPathsDialog::IncludeHdl()
{
    QListWidgetItem* selected = pathList_->currentItem();
    if (!selected)
        return;
    // Follows the entry's own marker, not the box's state.
    const std::string entry = selected->text().toStdString();
    const std::string toggled = TestSub(entry) ? WoutSub(entry) : WithSub(entry);
    selected->setText(Q(toggled));
    pathList_->setCurrentItem(selected);
    includeBox_->setChecked(TestSub(toggled));
}

void DocPathsDialog::OKHdl()
{
    ScopedWaitCursor wait;
    DocGroupConfig& g = config_->Group(group_);
    pathentries::Entries entries = hidden_;
    for (int i = 0; i < pathList_->count(); ++i)
        entries.shown.push_back(pathList_->item(i)->text().toStdString());
    const pathentries::Stored stored = pathentries::Join(entries);
    g.paths = stored.paths;
    g.guis = stored.guis;
    done(1);
}
