#pragma once
// Texts of the module's dialogs and menus as Qt strings, through the module's resources.
#include <QString>
#include <cstdint>

#include "docmgr/ui/docmgrresid.h"

// Title (CTL_TITLE) or control text of dialog `dialog`.
inline QString DialogText(uint16_t dialog, uint16_t local = CTL_TITLE)
{
    return DocMgrResId(dialog).DialogText(local);
}

inline QString MenuText(uint16_t menu, uint16_t item)
{
    return DocMgrResId(menu).Text(ResKind::Menu, item);
}

#include <QPushButton>
#include <tuple>  // callers take the pair apart with std::tie
#include <utility>

// The OK button (CTL_OK, the default) and the cancel button (CTL_CANCEL) of dialog `dialog`.
inline std::pair<QPushButton*, QPushButton*> MakeOkCancel(QWidget* parent, uint16_t dialog)
{
    auto* ok = new QPushButton(DialogText(dialog, CTL_OK), parent);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(DialogText(dialog, CTL_CANCEL), parent);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    return {ok, cancel};
}

#include <QDialog>
#include <QHBoxLayout>

// The OK and cancel buttons of `dialog` at the right of a row of their own, accepting and
// rejecting it.
inline QHBoxLayout* MakeOkCancelRow(QDialog* dialog, uint16_t dialogId)
{
    auto [ok, cancel] = MakeOkCancel(dialog, dialogId);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    return buttons;
}
