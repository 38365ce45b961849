#include "docmgr/dialogs/docgroupsdialog.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/ui/dialoglayout.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/dialogs/doccolumnsdialog.h"
#include "docmgr/dialogs/docfilterdialog.h"
#include "docmgr/dialogs/docpathsdialog.h"
#include "docmgr/dialogs/docsortdialog.h"
#include "docmgr/dialogs/groupnames.h"

namespace {
QString Q(const std::string& text)
{
    return QString::fromStdString(text);
}
QString Text(uint16_t local)
{
    return DialogText(DLG_GROUPS, local);
}
using groupnames::WithoutBlanks;
}  // namespace

DocGroupsDialog::DocGroupsDialog(QWidget* parent, ImplDocConfig* config, const QString& mainGroupName)
    : QDialog(parent), config_(config), mainGroupName_(mainGroupName)
{
    BuildControls();
    LayOutControls();
    attached_ = {newButton_,    changeButton_, deleteButton_, nameLabel_,
                 sectionLabel_, nameEdit_,     sectionBox_,   editFrame_};
    ConnectHandlers();

    FillSections();
    FillGroups();
    editedGroup_ = config_->CurrentPosition();
    SelectRow(editedGroup_ < config_->GroupCount() ? editedGroup_ : 0);
    SelectHdl();
    MoreHdl(false);

    SetTabChain({groupList_, okButton_, cancelButton_, settingsButton_, moreButton_, nameEdit_, sectionBox_, newButton_,
                 changeButton_, deleteButton_});
    groupList_->setFocus();
}

void DocGroupsDialog::BuildControls()
{
    setObjectName(QStringLiteral("groupsDialog"));
    setWindowTitle(DialogText(DLG_GROUPS));
    groupList_ = Named(new QListWidget(this), "groupList");
    frame_ = Named(new QGroupBox(Text(GROUPS_FRAME), this), "frame");
    nameLabel_ = Named(new QLabel(Text(GROUPS_NAME_LABEL), this), "nameLabel");
    nameEdit_ = Named(new QLineEdit(this), "nameEdit");
    nameLabel_->setBuddy(nameEdit_);
    sectionLabel_ = Named(new QLabel(Text(GROUPS_SECTION_LABEL), this), "sectionLabel");
    sectionBox_ = Named(new QComboBox(this), "sectionBox");
    sectionBox_->setEditable(true);
    sectionBox_->setInsertPolicy(QComboBox::NoInsert);
    sectionLabel_->setBuddy(sectionBox_);
    editFrame_ = Named(new QGroupBox(Text(GROUPS_EDIT_FRAME), this), "editFrame");
    okButton_ = Named(new QPushButton(Text(CTL_OK), this), "okButton");
    okButton_->setDefault(true);
    cancelButton_ = Named(new QPushButton(Text(GROUPS_CANCEL), this), "cancelButton");
    BuildSettingsButton();
    moreButton_ = Named(new QPushButton(this), "moreButton");
    moreButton_->setCheckable(true);
    newButton_ = Named(new QPushButton(Text(GROUPS_NEW), this), "newButton");
    changeButton_ = Named(new QPushButton(Text(GROUPS_CHANGE), this), "changeButton");
    deleteButton_ = Named(new QPushButton(Text(GROUPS_DELETE), this), "deleteButton");
    for (QPushButton* button : {cancelButton_, moreButton_, newButton_, changeButton_, deleteButton_})
        button->setAutoDefault(false);  // Enter stays with OK
}

void DocGroupsDialog::BuildSettingsButton()
{
    settingsButton_ = Named(new QToolButton(this), "settingsButton");
    settingsButton_->setText(Text(GROUPS_SETTINGS));
    settingsButton_->setPopupMode(QToolButton::InstantPopup);
    settingsButton_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    settingsButton_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    settingsMenu_ = Named(new QMenu(settingsButton_), "settingsMenu");
    for (unsigned short item : {ITEM_PATHS, ITEM_FILTER, ITEM_SORT, ITEM_COLUMNS, ITEM_STORE}) {
        if (item == ITEM_STORE)
            settingsMenu_->addSeparator();
        QAction* action = settingsMenu_->addAction(MenuText(MENU_GROUP_SETTINGS, item));
        action->setData(item);
    }
    settingsButton_->setMenu(settingsMenu_);
    // Room for the menu arrow beside the text.
    settingsButton_->setMinimumWidth(settingsButton_->sizeHint().width() + 12);
}

void DocGroupsDialog::LayOutControls()
{
    // The group list with OK, cancel, settings and more beside it; below, the editing
    // fields with new, change and delete beside them.
    auto* frameLayout = new QVBoxLayout(frame_);
    frameLayout->addWidget(groupList_);
    auto* editLayout = new QGridLayout(editFrame_);
    editLayout->addWidget(nameLabel_, 0, 0);
    editLayout->addWidget(nameEdit_, 0, 1);
    editLayout->addWidget(sectionLabel_, 1, 0);
    editLayout->addWidget(sectionBox_, 1, 1);
    editLayout->setColumnStretch(1, 1);
    auto* layout = new QGridLayout(this);
    layout->addWidget(frame_, 0, 0);
    layout->addLayout(ButtonColumn({okButton_, cancelButton_, settingsButton_, moreButton_}), 0, 1);
    layout->addWidget(editFrame_, 1, 0);
    layout->addLayout(ButtonColumn({newButton_, changeButton_, deleteButton_}), 1, 1);
    layout->setRowStretch(0, 1);
    groupList_->setMinimumSize(260, 220);
    nameEdit_->setMinimumWidth(180);
}

void DocGroupsDialog::ConnectHandlers()
{
    connect(groupList_, &QListWidget::currentRowChanged, this, &DocGroupsDialog::SelectHdl);
    connect(okButton_, &QPushButton::clicked, this, &DocGroupsDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &DocGroupsDialog::CancelHdl);
    connect(newButton_, &QPushButton::clicked, this, &DocGroupsDialog::NewHdl);
    connect(changeButton_, &QPushButton::clicked, this, &DocGroupsDialog::ChangeHdl);
    connect(deleteButton_, &QPushButton::clicked, this, &DocGroupsDialog::DeleteHdl);
    connect(moreButton_, &QPushButton::toggled, this, &DocGroupsDialog::MoreHdl);
    connect(settingsMenu_, &QMenu::triggered, this,
            [this](QAction* action) { SettingsHdl(action->data().value<unsigned short>()); });
    connect(nameEdit_, &QLineEdit::textEdited, this, [this] {
        nameModified_ = true;
        ModifyHdl();
    });
    const auto sectionModified = [this] {
        sectionModified_ = true;
        ModifyHdl();
    };
    connect(sectionBox_->lineEdit(), &QLineEdit::textEdited, this, sectionModified);
    connect(sectionBox_, &QComboBox::textActivated, this, sectionModified);
    // Enter in either field applies the change (eventFilter).
    nameEdit_->installEventFilter(this);
    sectionBox_->lineEdit()->installEventFilter(this);
}

DocGroupsDialog::~DocGroupsDialog() = default;

void DocGroupsDialog::FillGroups()
{
    const QSignalBlocker blocker(groupList_);
    for (uint16_t g = 0; g < config_->GroupCount(); ++g)
        groupList_->addItem(Q(config_->Group(g).groupName));
}

void DocGroupsDialog::FillSections()
{
    const QSignalBlocker blocker(sectionBox_);
    sectionBox_->clear();
    for (uint16_t g = 0; g < config_->GroupCount(); ++g)
        AddSection(Q(config_->Group(g).section));
}

void DocGroupsDialog::AddSection(const QString& section)
{
    if (sectionBox_->findText(section, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0)
        return;
    const QString text = sectionBox_->currentText();
    const QSignalBlocker blocker(sectionBox_);
    sectionBox_->addItem(section);
    sectionBox_->setEditText(text);
}

void DocGroupsDialog::SelectRow(int row)
{
    const QSignalBlocker blocker(groupList_);
    groupList_->setCurrentRow(row);
}

bool DocGroupsDialog::ListHolds(const QString& name) const
{
    return !groupList_->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty();
}

QString DocGroupsDialog::SelectedName() const
{
    const QListWidgetItem* item = groupList_->currentItem();
    return item ? item->text() : QString();
}

unsigned short DocGroupsDialog::SelectedPos() const
{
    const int row = groupList_->currentRow();
    return row < 0 ? 0xFFFF : static_cast<unsigned short>(row);
}

bool DocGroupsDialog::IsProtected(const QString& name) const
{
    return name == DocResString(STR_FIRST_GROUP);
}

QString DocGroupsDialog::MainGroupName() const
{
    return mainGroupName_;
}

void DocGroupsDialog::SelectHdl()
{
    editedGroup_ = SelectedPos();
    const QString name = SelectedName();
    {
        const QSignalBlocker nameBlocker(nameEdit_);
        const QSignalBlocker sectionBlocker(sectionBox_);
        if (groupList_->count() == 0) {
            okButton_->setEnabled(false);
            settingsButton_->setEnabled(false);
            nameEdit_->clear();
            sectionBox_->setEditText(QString());
            deleteButton_->setEnabled(false);
        } else {
            okButton_->setEnabled(true);
            settingsButton_->setEnabled(true);
            nameEdit_->setText(name);
            sectionBox_->setEditText(editedGroup_ < config_->GroupCount() ? Q(config_->Group(editedGroup_).section)
                                                                          : QString());
            deleteButton_->setEnabled(!IsProtected(name));
        }
    }
    nameModified_ = false;
    sectionModified_ = false;
    const bool editable = !IsProtected(name);
    changeButton_->setEnabled(editable);
    nameEdit_->setEnabled(editable);
    sectionBox_->setEnabled(editable);
}

void DocGroupsDialog::ModifyHdl()
{
    changeButton_->setEnabled(groupnames::CanChange(nameEdit_->text(), sectionBox_->currentText(), SelectedName(),
                                                    [this](const QString& name) { return ListHolds(name); }));
}

void DocGroupsDialog::ChangeHdl()
{
    if (editedGroup_ >= config_->GroupCount() || IsProtected(SelectedName()))
        return;
    // The group object itself: renaming moves it to another list position.
    DocGroupConfig& group = config_->Group(editedGroup_);

    if (nameModified_) {
        nameModified_ = false;
        const QString name = WithoutBlanks(nameEdit_->text());
        nameEdit_->setText(name);
        if (name.isEmpty()) {
            nameEdit_->setText(SelectedName());
            return;
        }
        if (!ListHolds(name)) {
            if (Q(group.groupName) == MainGroupName())
                mainGroupChanged_ = true;
            group.groupName = name.toStdString();
            // The list keeps its own order: the renamed group goes to the end.
            const unsigned short newPos = static_cast<unsigned short>(groupList_->count() - 1);
            {
                const QSignalBlocker blocker(groupList_);
                delete groupList_->takeItem(editedGroup_);
                groupList_->addItem(name);
                groupList_->setCurrentRow(newPos);
            }
            config_->MoveGroup(editedGroup_, newPos);
            editedGroup_ = newPos;
        }
    }

    if (sectionModified_) {
        sectionModified_ = false;
        QString section = WithoutBlanks(sectionBox_->currentText());
        if (section.isEmpty())
            section = Q(group.section);  // a section needs a name; keep the old one
        sectionBox_->setEditText(section);
        const std::string oldSection = group.section;
        group.section = section.toStdString();
        bool oldUsed = false;
        for (uint16_t g = 0; g < config_->GroupCount() && !oldUsed; ++g)
            oldUsed = config_->Group(g).section == oldSection;
        if (!oldUsed) {
            const int index = sectionBox_->findText(Q(oldSection), Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (index >= 0) {
                const QSignalBlocker blocker(sectionBox_);
                sectionBox_->removeItem(index);
                sectionBox_->setEditText(section);
            }
        }
        AddSection(section);
    }
}

void DocGroupsDialog::NewHdl()
{
    const QString name = groupnames::NewName(DocResString(STR_NEW_GROUP_STEM),
                                             [this](const QString& taken) { return ListHolds(taken); });
    groupList_->addItem(name);
    const unsigned short pos = static_cast<unsigned short>(groupList_->count() - 1);
    SelectRow(pos);

    config_->InsertGroup(pos);
    DocGroupConfig& group = config_->Group(pos);
    group.groupName = name.toStdString();
    group.section = ResString(STR_DEFAULT_SECTION);
    AddSection(Q(group.section));
    SelectHdl();
}

void DocGroupsDialog::DeleteHdl()
{
    const unsigned short pos = SelectedPos();
    if (pos >= config_->GroupCount() || IsProtected(SelectedName()))
        return;
    if (SelectedName() == MainGroupName())
        mainGroupChanged_ = true;

    config_->RemoveGroup(pos);  // writes the configuration
    {
        const QSignalBlocker blocker(groupList_);
        delete groupList_->takeItem(pos);
    }
    SelectRow(std::min<int>(pos, groupList_->count() - 1));
    FillSections();
    SelectHdl();
}

void DocGroupsDialog::SettingsHdl(unsigned short item)
{
    const unsigned short g = SelectedPos();
    if (g >= config_->GroupCount())
        return;
    bool confirmed = false;
    std::unique_ptr<QDialog> dialog;
    switch (item) {
    case ITEM_PATHS: dialog = std::make_unique<DocPathsDialog>(this, config_, g); break;
    case ITEM_FILTER: dialog = std::make_unique<DocFilterDialog>(this, config_, g); break;
    case ITEM_SORT: dialog = std::make_unique<DocSortDialog>(this, config_, g); break;
    case ITEM_COLUMNS: dialog = std::make_unique<DocColumnsDialog>(this, config_, g); break;
    case ITEM_STORE:
        config_->SetGroupByExample(g);
        confirmed = true;
        break;
    default: return;
    }
    if (dialog)
        confirmed = dialog->exec() == 1;
    if (confirmed && Q(config_->Group(g).groupName) == MainGroupName())
        mainGroupChanged_ = true;
}

void DocGroupsDialog::OKHdl()
{
    config_->SaveConfig();
    config_->SetCurGroup(SelectedPos());
    done(1);
}

void DocGroupsDialog::CancelHdl()
{
    // Changes already made stay; cancel spares only the switch of the actual group,
    // unless the main dialog's group was renamed, deleted or changed while selected.
    config_->SaveConfig();
    const QString mainName = MainGroupName();
    if (mainGroupChanged_ && (!ListHolds(mainName) || mainName == SelectedName())) {
        config_->SaveConfig();
        config_->SetCurGroup(SelectedPos());
        done(1);
        return;
    }
    done(0);
}

void DocGroupsDialog::reject()
{
    CancelHdl();
}

void DocGroupsDialog::MoreHdl(bool expanded)
{
    moreButton_->setText(Text(GROUPS_MORE) + (expanded ? QStringLiteral(" <<") : QStringLiteral(" >>")));
    for (QWidget* widget : attached_)
        widget->setVisible(expanded);
    if (!expanded && layout()) {
        layout()->activate();
        resize(width(), minimumSizeHint().height());
    }
}

bool DocGroupsDialog::eventFilter(QObject* watched, QEvent* event)
{
    // Enter in the name or section field applies the change instead of closing.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && changeButton_->isEnabled() &&
            (nameModified_ || sectionModified_)) {
            ChangeHdl();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
