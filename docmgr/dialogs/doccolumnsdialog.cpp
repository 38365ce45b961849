#include "docmgr/dialogs/doccolumnsdialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QKeyEvent>
#include <QToolButton>
#include <utility>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/dialogs/columnmove.h"
#include "docmgr/ui/dialoglayout.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/records/docfields.h"

namespace {
constexpr int kLastPos = 20;  // 20 columns and the separator

// An arrow button that names its move in its tool tip.
QToolButton* MoveButton(QWidget* parent, const char* name, Qt::ArrowType arrow, uint16_t text)
{
    auto* button = Named(new QToolButton(parent), name);
    button->setArrowType(arrow);
    button->setToolTip(DialogText(DLG_COLUMNS, text));
    button->setAccessibleName(DialogText(DLG_COLUMNS, text));
    button->setIconSize(QSize(20, 20));
    return button;
}
}  // namespace

const QString& DocColumnsDialog::SeparatorText()
{
    static const QString text = QStringLiteral("--------------------");
    return text;
}

DocColumnsDialog::DocColumnsDialog(QWidget* parent, ImplDocConfig* config, unsigned short group)
    : QDialog(parent), config_(config), group_(group)
{
    ScopedWaitCursor wait;
    BuildControls();
    const DocGroupConfig& g = config_->Group(group_);
    columnOrder_ = g.columnId;

    connect(okButton_, &QPushButton::clicked, this, &DocColumnsDialog::OKHdl);
    connect(cancelButton_, &QPushButton::clicked, this, &QDialog::reject);
    connect(upButton_, &QToolButton::clicked, this, &DocColumnsDialog::UpHdl);
    connect(downButton_, &QToolButton::clicked, this, &DocColumnsDialog::DownHdl);
    columnList_->installEventFilter(this);

    for (uint16_t id : columnOrder_)
        columnList_->addItem(QString::fromStdString(GetColumnTitle(id, g)));
    columnList_->insertItem(std::min<int>(g.frozenColumns, COLUMN_SLOTS), SeparatorText());

    columnList_->setCurrentRow(0);
    upButton_->setEnabled(false);
    // Connected after the first selection: construction leaves the down button as it is.
    connect(columnList_, &QListWidget::currentRowChanged, this, &DocColumnsDialog::SelectHdl);

    SetTabChain({columnList_, upButton_, downButton_, okButton_, cancelButton_});
    columnList_->setFocus();
}

void DocColumnsDialog::BuildControls()
{
    setObjectName(QStringLiteral("columnsDialog"));
    setWindowTitle(DialogText(DLG_COLUMNS));
    columnList_ = Named(new QListWidget(this), "columnList");
    frame_ = Named(new QGroupBox(DialogText(DLG_COLUMNS, COLUMNS_FRAME), this), "frame");
    std::tie(okButton_, cancelButton_) = MakeOkCancel(this, DLG_COLUMNS);
    upButton_ = MoveButton(this, "upButton", Qt::UpArrow, COLUMNS_UP);
    downButton_ = MoveButton(this, "downButton", Qt::DownArrow, COLUMNS_DOWN);
    auto* hint = Named(new QLabel(DialogText(DLG_COLUMNS, COLUMNS_FROZEN_HINT), this), "hintLabel");
    hint->setWordWrap(true);

    // The list with its move buttons and the hint in the frame; OK and cancel at the right.
    auto* frameLayout = new QGridLayout(frame_);
    frameLayout->addWidget(columnList_, 0, 0);
    frameLayout->addLayout(CentredButtonColumn({upButton_, downButton_}), 0, 1);
    frameLayout->addWidget(hint, 1, 0, 1, 2);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frame_, 1);
    layout->addLayout(ButtonColumn({okButton_, cancelButton_}));
    columnList_->setMinimumSize(220, 360);
}

DocColumnsDialog::~DocColumnsDialog() = default;

int DocColumnsDialog::SeparatorPos() const
{
    for (int i = 0; i < columnList_->count(); ++i)
        if (columnList_->item(i)->text() == SeparatorText())
            return i;
    return -1;
}

void DocColumnsDialog::SelectHdl()
{
    const int pos = columnList_->currentRow();
    upButton_->setEnabled(pos != 0);
    downButton_->setEnabled(pos != kLastPos);
}

void DocColumnsDialog::SwapEntries(int a, int select)
{
    columnList_->setUpdatesEnabled(false);
    {
        const QSignalBlocker blocker(columnList_);
        QListWidgetItem* lower = columnList_->takeItem(a + 1);
        columnList_->insertItem(a, lower);
        columnList_->setCurrentRow(select);
    }
    columnList_->setUpdatesEnabled(true);
    SelectHdl();
}

void DocColumnsDialog::UpHdl()
{
    const int p = columnList_->currentRow();
    if (p < 1)
        return;
    SwapEntries(p - 1, p - 1);
    SwapSlots(p - 1);
}

void DocColumnsDialog::DownHdl()
{
    const int p = columnList_->currentRow();
    if (p < 0 || p >= kLastPos)
        return;
    SwapEntries(p, p + 1);
    SwapSlots(p);
}

void DocColumnsDialog::SwapSlots(int upper)
{
    const int slot = columnmove::SwappedSlot(upper, SeparatorPos());
    if (slot >= 0)
        std::swap(columnOrder_[size_t(slot)], columnOrder_[size_t(slot) + 1]);
}

void DocColumnsDialog::OKHdl()
{
    // Widths stay in their slots: a column moved to another slot takes that slot's width.
    DocGroupConfig& g = config_->Group(group_);
    g.columnId = columnOrder_;
    g.frozenColumns = static_cast<uint16_t>(SeparatorPos());
    done(1);
}

bool DocColumnsDialog::eventFilter(QObject* watched, QEvent* event)
{
    // Ctrl+Up and Ctrl+Down move the selected entry while the list keeps the focus.
    if (watched == columnList_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            if (key->key() == Qt::Key_Up)
                UpHdl();
            else
                DownHdl();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
