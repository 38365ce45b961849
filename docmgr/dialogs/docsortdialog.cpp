#include "docmgr/dialogs/docsortdialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/ui/dialoglayout.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/records/docfields.h"

namespace {
constexpr int kEntries = 20;
bool rememberedAscending = true;
}  // namespace

bool DocSortDialog::RememberedAscending()
{
    return rememberedAscending;
}
void DocSortDialog::SetRememberedAscending(bool ascending)
{
    rememberedAscending = ascending;
}

DocSortDialog::DocSortDialog(QWidget* parent, ImplDocConfig* config, unsigned short group)
    : QDialog(parent), config_(config), group_(group)
{
    ScopedWaitCursor wait;
    setObjectName(QStringLiteral("sortDialog"));
    setWindowTitle(DialogText(DLG_SORT));

    auto* caption = Named(new QLabel(DialogText(DLG_SORT, SORT_BY_LABEL), this), "columnCaption");
    columnList_ = Named(new QListWidget(this), "columnList");
    caption->setBuddy(columnList_);
    directionFrame_ = Named(new QGroupBox(DialogText(DLG_SORT, SORT_ORDER_FRAME), this), "directionFrame");
    ascendingButton_ =
        Named(new QRadioButton(DialogText(DLG_SORT, SORT_ASCENDING), directionFrame_), "ascendingButton");
    descendingButton_ =
        Named(new QRadioButton(DialogText(DLG_SORT, SORT_DESCENDING), directionFrame_), "descendingButton");
    std::tie(okButton_, cancelButton_) = MakeOkCancel(this, DLG_SORT);

    auto* frameLayout = new QVBoxLayout(directionFrame_);
    frameLayout->addWidget(ascendingButton_);
    frameLayout->addWidget(descendingButton_);
    auto* listLayout = new QVBoxLayout;
    listLayout->addWidget(caption);
    listLayout->addWidget(columnList_);
    auto* right = new QVBoxLayout;
    right->addWidget(okButton_);
    right->addWidget(cancelButton_);
    right->addSpacing(12);
    right->addWidget(directionFrame_);
    right->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(listLayout, 1);
    layout->addLayout(right);
    columnList_->setMinimumSize(200, 340);

    connect(okButton_, &QPushButton::clicked, this, &DocSortDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    connect(columnList_, &QListWidget::currentRowChanged, this, &DocSortDialog::SelectHdl);

    const DocGroupConfig& g = config_->Group(group_);
    CheckDirection(g.sortAscending, !g.sortAscending);

    // Position p shows column p + 1's title.
    for (int p = 0; p < kEntries; ++p)
        columnList_->addItem(QString::fromStdString(GetColumnTitle(uint16_t(p + 1), g)));
    {
        const QSignalBlocker blocker(columnList_);
        // A stored id s selects position s; an id past the list selects nothing.
        columnList_->setCurrentRow(g.sortColumnId < NO_COLUMN ? g.sortColumnId : 0);
    }
    SelectHdl();

    SetTabChain({columnList_, ascendingButton_, descendingButton_, okButton_, cancelButton_});
    columnList_->setFocus();
}

DocSortDialog::~DocSortDialog() = default;

void DocSortDialog::CheckDirection(bool ascending, bool descending)
{
    for (QRadioButton* button : {ascendingButton_, descendingButton_})
        button->setAutoExclusive(false);
    ascendingButton_->setChecked(ascending);
    descendingButton_->setChecked(descending);
    for (QRadioButton* button : {ascendingButton_, descendingButton_})
        button->setAutoExclusive(true);
}

void DocSortDialog::SelectHdl()
{
    if (columnList_->currentRow() == 0) {
        if (!ascendingButton_->isEnabled())
            return;
        rememberedAscending = ascendingButton_->isChecked();
        CheckDirection(false, false);
        ascendingButton_->setEnabled(false);
        descendingButton_->setEnabled(false);
    } else {
        if (ascendingButton_->isEnabled())
            return;
        CheckDirection(rememberedAscending, !rememberedAscending);
        ascendingButton_->setEnabled(true);
        descendingButton_->setEnabled(true);
    }
}

void DocSortDialog::OKHdl()
{
    DocGroupConfig& g = config_->Group(group_);
    const int p = columnList_->currentRow();
    // No selection stores "no sort" as well.
    g.sortColumnId = p > 0 ? uint16_t(p) : NO_COLUMN;
    g.sortAscending = ascendingButton_->isChecked();
    done(1);
}
