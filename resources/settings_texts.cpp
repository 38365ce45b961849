// Texts of the columns, sort, groups and paths dialogs and the groups dialog's settings menu.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;

constexpr ResEntry kTexts[] = {
    // Paths dialog.
    {D, 15701, 0, QT_TRANSLATE_NOOP3("DocMgr", "Directories of the Group", "dialog 15701.0")},
    {D, 15701, 20, QT_TRANSLATE_NOOP3("DocMgr", "&Chosen directories:", "dialog 15701.20")},
    {D, 15701, 22, QT_TRANSLATE_NOOP3("DocMgr", "All &directories:", "dialog 15701.22")},
    {D, 15701, 26, QT_TRANSLATE_NOOP3("DocMgr", "&Remove", "dialog 15701.26")},
    {D, 15701, 226, QT_TRANSLATE_NOOP3("DocMgr", "&Include subdirectories", "dialog 15701.226")},  // check box 26
    {D, 15701, 27, QT_TRANSLATE_NOOP3("DocMgr", "Where the group's documents are", "dialog 15701.27")},
    {D, 15701, 32, QT_TRANSLATE_NOOP3("DocMgr", "&Add >>", "dialog 15701.32")},
    {D, 15701, 33, QT_TRANSLATE_NOOP3("DocMgr", "Remove a&ll", "dialog 15701.33")},
    {D, 15701, 18, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15701.18")},
    {D, 15701, 19, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15701.19")},
    // Sort dialog.
    {D, 15703, 0, QT_TRANSLATE_NOOP3("DocMgr", "Sort", "dialog 15703.0")},
    {D, 15703, 72, QT_TRANSLATE_NOOP3("DocMgr", "&Sort by:", "dialog 15703.72")},
    {D, 15703, 71, QT_TRANSLATE_NOOP3("DocMgr", "Order", "dialog 15703.71")},
    {D, 15703, 28, QT_TRANSLATE_NOOP3("DocMgr", "&Ascending", "dialog 15703.28")},
    {D, 15703, 29, QT_TRANSLATE_NOOP3("DocMgr", "&Descending", "dialog 15703.29")},
    {D, 15703, 18, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15703.18")},
    {D, 15703, 19, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15703.19")},
    // Columns dialog.
    {D, 15704, 0, QT_TRANSLATE_NOOP3("DocMgr", "Columns", "dialog 15704.0")},
    {D, 15704, 81, QT_TRANSLATE_NOOP3("DocMgr", "Column order", "dialog 15704.81")},
    {D, 15704, 82, QT_TRANSLATE_NOOP3("DocMgr", "Columns above the line stay in place when the list scrolls sideways.", "dialog 15704.82")},
    {D, 15704, 30, QT_TRANSLATE_NOOP3("DocMgr", "Move up (Ctrl+Up)", "dialog 15704.30")},
    {D, 15704, 31, QT_TRANSLATE_NOOP3("DocMgr", "Move down (Ctrl+Down)", "dialog 15704.31")},
    {D, 15704, 18, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15704.18")},
    {D, 15704, 19, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15704.19")},
    // Groups dialog.
    {D, 15705, 0, QT_TRANSLATE_NOOP3("DocMgr", "Groups", "dialog 15705.0")},
    {D, 15705, 13, QT_TRANSLATE_NOOP3("DocMgr", "Groups", "dialog 15705.13")},
    {D, 15705, 14, QT_TRANSLATE_NOOP3("DocMgr", "&Name:", "dialog 15705.14")},
    {D, 15705, 10, QT_TRANSLATE_NOOP3("DocMgr", "S&ection:", "dialog 15705.10")},
    {D, 15705, 16, QT_TRANSLATE_NOOP3("DocMgr", "Group", "dialog 15705.16")},
    {D, 15705, 18, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15705.18")},
    {D, 15705, 11, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15705.11")},
    {D, 15705, 22, QT_TRANSLATE_NOOP3("DocMgr", "Se&ttings", "dialog 15705.22")},
    {D, 15705, 23, QT_TRANSLATE_NOOP3("DocMgr", "&More", "dialog 15705.23")},
    {D, 15705, 20, QT_TRANSLATE_NOOP3("DocMgr", "Ne&w", "dialog 15705.20")},
    {D, 15705, 24, QT_TRANSLATE_NOOP3("DocMgr", "C&hange", "dialog 15705.24")},
    {D, 15705, 21, QT_TRANSLATE_NOOP3("DocMgr", "&Delete", "dialog 15705.21")},
    // Settings menu of the groups dialog.
    {M, 15705, 10, QT_TRANSLATE_NOOP3("DocMgr", "&Directories...", "menu 15705.10")},
    {M, 15705, 11, QT_TRANSLATE_NOOP3("DocMgr", "&Filter...", "menu 15705.11")},
    {M, 15705, 12, QT_TRANSLATE_NOOP3("DocMgr", "&Sort...", "menu 15705.12")},
    {M, 15705, 13, QT_TRANSLATE_NOOP3("DocMgr", "&Columns...", "menu 15705.13")},
    {M, 15705, 14, QT_TRANSLATE_NOOP3("DocMgr", "S&tore Current Settings", "menu 15705.14")},
};
}  // namespace

std::span<const ResEntry> SettingsTexts() { return kTexts; }
