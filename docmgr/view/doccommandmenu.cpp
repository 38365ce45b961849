#include "docmgr/view/doccommandmenu.h"

#include "docmgr/tools/resmgr.h"

namespace {
const char* const kItemNames[] = {"deleteItem",    "docInfoItem",    "copyItem",      "renameItem", "printDocsItem",
                                  "printListItem", "exportListItem", "batchInfoItem", "undoItem",   "redoItem"};
}  // namespace

DocCommandMenu::DocCommandMenu(QWidget* parent, bool withUndo) : QMenu(parent)
{
    setObjectName("commandMenu");
    for (unsigned short id = CMD_DELETE; id <= (withUndo ? CMD_REDO : CMD_BATCHINFO); ++id) {
        if (id == CMD_UNDO)
            addSeparator();
        QAction* item = addAction(QString::fromStdString(ResText(ResKind::Menu, MENU_COMMANDS, id)));
        item->setData(id);
        item->setObjectName(kItemNames[id - CMD_DELETE]);
    }
    // The keys work where the list has the focus: the manager adds these items to it.
    Item(CMD_DELETE)->setShortcut(QKeySequence::Delete);
    Item(CMD_RENAME)->setShortcut(Qt::Key_F2);
    if (withUndo) {
        Item(CMD_UNDO)->setShortcut(QKeySequence::Undo);
        Item(CMD_REDO)->setShortcut(QKeySequence::Redo);
    }
    for (QAction* item : actions())
        item->setShortcutContext(Qt::WidgetWithChildrenShortcut);
}

QAction* DocCommandMenu::Item(unsigned short id) const
{
    for (QAction* item : actions())
        if (!item->isSeparator() && ItemId(item) == id)
            return item;
    return nullptr;
}

unsigned short DocCommandMenu::ItemId(const QAction* item)
{
    return item ? static_cast<unsigned short>(item->data().toUInt()) : 0;
}
