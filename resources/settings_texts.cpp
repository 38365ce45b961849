// Texts of the columns, sort, groups and paths dialogs and the groups dialog's settings menu.
#include "resources/restable.h"

#include "resources/resids.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;

constexpr ResEntry kTexts[] = {
    // Paths dialog.
    {D, DLG_PATHS, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Directories of the Group", "dialog 15701.0")},
    {D, DLG_PATHS, PATHS_CHOSEN_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Chosen directories:", "dialog 15701.20")},
    {D, DLG_PATHS, PATHS_TREE_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "All &directories:", "dialog 15701.22")},
    {D, DLG_PATHS, PATHS_REMOVE, QT_TRANSLATE_NOOP3("DocMgr", "&Remove", "dialog 15701.26")},
    {D, DLG_PATHS, PATHS_INCLUDE_TEXT,
     QT_TRANSLATE_NOOP3("DocMgr", "&Include subdirectories", "dialog 15701.226")},  // check box 26
    {D, DLG_PATHS, PATHS_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Where the group's documents are", "dialog 15701.27")},
    {D, DLG_PATHS, PATHS_ADD, QT_TRANSLATE_NOOP3("DocMgr", "&Add >>", "dialog 15701.32")},
    {D, DLG_PATHS, PATHS_REMOVE_ALL, QT_TRANSLATE_NOOP3("DocMgr", "Remove a&ll", "dialog 15701.33")},
    {D, DLG_PATHS, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15701.18")},
    {D, DLG_PATHS, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15701.19")},
    // Sort dialog.
    {D, DLG_SORT, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Sort", "dialog 15703.0")},
    {D, DLG_SORT, SORT_BY_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Sort by:", "dialog 15703.72")},
    {D, DLG_SORT, SORT_ORDER_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Order", "dialog 15703.71")},
    {D, DLG_SORT, SORT_ASCENDING, QT_TRANSLATE_NOOP3("DocMgr", "&Ascending", "dialog 15703.28")},
    {D, DLG_SORT, SORT_DESCENDING, QT_TRANSLATE_NOOP3("DocMgr", "&Descending", "dialog 15703.29")},
    {D, DLG_SORT, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15703.18")},
    {D, DLG_SORT, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15703.19")},
    // Columns dialog.
    {D, DLG_COLUMNS, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Columns", "dialog 15704.0")},
    {D, DLG_COLUMNS, COLUMNS_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Column order", "dialog 15704.81")},
    {D, DLG_COLUMNS, COLUMNS_FROZEN_HINT,
     QT_TRANSLATE_NOOP3("DocMgr", "Columns above the line stay in place when the list scrolls sideways.",
                        "dialog 15704.82")},
    {D, DLG_COLUMNS, COLUMNS_UP, QT_TRANSLATE_NOOP3("DocMgr", "Move up (Ctrl+Up)", "dialog 15704.30")},
    {D, DLG_COLUMNS, COLUMNS_DOWN, QT_TRANSLATE_NOOP3("DocMgr", "Move down (Ctrl+Down)", "dialog 15704.31")},
    {D, DLG_COLUMNS, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15704.18")},
    {D, DLG_COLUMNS, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15704.19")},
    // Groups dialog.
    {D, DLG_GROUPS, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Groups", "dialog 15705.0")},
    {D, DLG_GROUPS, GROUPS_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Groups", "dialog 15705.13")},
    {D, DLG_GROUPS, GROUPS_NAME_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Name:", "dialog 15705.14")},
    {D, DLG_GROUPS, GROUPS_SECTION_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "S&ection:", "dialog 15705.10")},
    {D, DLG_GROUPS, GROUPS_EDIT_FRAME, QT_TRANSLATE_NOOP3("DocMgr", "Group", "dialog 15705.16")},
    {D, DLG_GROUPS, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15705.18")},
    {D, DLG_GROUPS, GROUPS_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15705.11")},
    {D, DLG_GROUPS, GROUPS_SETTINGS, QT_TRANSLATE_NOOP3("DocMgr", "Se&ttings", "dialog 15705.22")},
    {D, DLG_GROUPS, GROUPS_MORE, QT_TRANSLATE_NOOP3("DocMgr", "&More", "dialog 15705.23")},
    {D, DLG_GROUPS, GROUPS_NEW, QT_TRANSLATE_NOOP3("DocMgr", "Ne&w", "dialog 15705.20")},
    {D, DLG_GROUPS, GROUPS_CHANGE, QT_TRANSLATE_NOOP3("DocMgr", "C&hange", "dialog 15705.24")},
    {D, DLG_GROUPS, GROUPS_DELETE, QT_TRANSLATE_NOOP3("DocMgr", "&Delete", "dialog 15705.21")},
    // Settings menu of the groups dialog.
    {M, MENU_GROUP_SETTINGS, ITEM_PATHS, QT_TRANSLATE_NOOP3("DocMgr", "&Directories...", "menu 15705.10")},
    {M, MENU_GROUP_SETTINGS, ITEM_FILTER, QT_TRANSLATE_NOOP3("DocMgr", "&Filter...", "menu 15705.11")},
    {M, MENU_GROUP_SETTINGS, ITEM_SORT, QT_TRANSLATE_NOOP3("DocMgr", "&Sort...", "menu 15705.12")},
    {M, MENU_GROUP_SETTINGS, ITEM_COLUMNS, QT_TRANSLATE_NOOP3("DocMgr", "&Columns...", "menu 15705.13")},
    {M, MENU_GROUP_SETTINGS, ITEM_STORE, QT_TRANSLATE_NOOP3("DocMgr", "S&tore Current Settings", "menu 15705.14")},
};
}  // namespace

std::span<const ResEntry> SettingsTexts()
{
    return kTexts;
}
