#include "docmgr/dialogs/doccolumnsdialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/dialogs/columnmove.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/records/docfields.h"

namespace {
constexpr int kLastPos = 20;  // 20 columns and the separator
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
    setObjectName(QStringLiteral("columnsDialog"));
    setWindowTitle(DialogText(DLG_COLUMNS));

    columnList_ = new QListWidget(this);
    columnList_->setObjectName(QStringLiteral("columnList"));
    frame_ = new QGroupBox(DialogText(DLG_COLUMNS, COLUMNS_FRAME), this);
    frame_->setObjectName(QStringLiteral("frame"));
    std::tie(okButton_, cancelButton_) = MakeOkCancel(this, DLG_COLUMNS);
    upButton_ = new QToolButton(this);
    upButton_->setObjectName(QStringLiteral("upButton"));
    upButton_->setArrowType(Qt::UpArrow);
    downButton_ = new QToolButton(this);
    downButton_->setObjectName(QStringLiteral("downButton"));
    downButton_->setArrowType(Qt::DownArrow);
    for (auto [button, local] : {std::pair{upButton_, COLUMNS_UP}, std::pair{downButton_, COLUMNS_DOWN}}) {
        button->setToolTip(DialogText(DLG_COLUMNS, local));
        button->setAccessibleName(DialogText(DLG_COLUMNS, local));
        button->setIconSize(QSize(20, 20));
    }
    auto* hint = new QLabel(DialogText(DLG_COLUMNS, COLUMNS_FROZEN_HINT), this);
    hint->setObjectName(QStringLiteral("hintLabel"));
    hint->setWordWrap(true);

    auto* moveButtons = new QVBoxLayout;
    moveButtons->addStretch();
    moveButtons->addWidget(upButton_);
    moveButtons->addWidget(downButton_);
    moveButtons->addStretch();
    auto* frameLayout = new QGridLayout(frame_);
    frameLayout->addWidget(columnList_, 0, 0);
    frameLayout->addLayout(moveButtons, 0, 1);
    frameLayout->addWidget(hint, 1, 0, 1, 2);
    auto* dialogButtons = new QVBoxLayout;
    dialogButtons->addWidget(okButton_);
    dialogButtons->addWidget(cancelButton_);
    dialogButtons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(frame_, 1);
    layout->addLayout(dialogButtons);
    columnList_->setMinimumSize(220, 360);

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

    setTabOrder(columnList_, upButton_);
    setTabOrder(upButton_, downButton_);
    setTabOrder(downButton_, okButton_);
    setTabOrder(okButton_, cancelButton_);
    columnList_->setFocus();
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
        if (key->modifiers() == Qt::ControlModifier &&
            (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            if (key->key() == Qt::Key_Up)
                UpHdl();
            else
                DownHdl();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
