#pragma once
// The menu of the file commands (MENU_COMMANDS, items CMD_DELETE to CMD_REDO): the
// manager's commands button carries one, the list opens one as its context menu.
#include <QMenu>

#include "resources/resids.h"

class DocCommandMenu : public QMenu {
    Q_OBJECT
public:
    // `withUndo`: with the undo and redo items, which act on the whole dialog (the
    // commands button's menu, not the list's context menu).
    explicit DocCommandMenu(QWidget* parent, bool withUndo = false);

    // The item of command `id`, or null.
    QAction* Item(unsigned short id) const;
    // Command id of an item of this menu.
    static unsigned short ItemId(const QAction* item);
};
