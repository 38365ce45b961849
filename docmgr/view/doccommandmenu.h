#pragma once
// The menu of the file commands (menu resource 15700, items 20 to 26): the manager's
// commands button carries one, the list opens one as its context menu.
#include <QMenu>

// Command ids of the commands menu and of the list's context menu.
enum DocCommand : unsigned short {
    CMD_DELETE = 20, CMD_DOCINFO = 21, CMD_COPY = 22, CMD_RENAME = 23,
    CMD_PRINTDOCS = 24, CMD_PRINTLIST = 25, CMD_EXPORTLIST = 26
};

class DocCommandMenu : public QMenu {
    Q_OBJECT
public:
    explicit DocCommandMenu(QWidget* parent);

    // The item of command `id`, or null.
    QAction* Item(unsigned short id) const;
    // Command id of an item of this menu.
    static unsigned short ItemId(const QAction* item);
};
