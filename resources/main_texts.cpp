// Texts of the main dialog 15700, its commands menu and query boxes.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;
constexpr ResKind Q = ResKind::QueryBox;

constexpr ResEntry kTexts[] = {
    // Dialog 15700: title and controls by their local ids.
    {D, 15700, 0, QT_TRANSLATE_NOOP3("DocMgr", "Document Manager", "dialog 15700.0")},
    {D, 15700, 10, QT_TRANSLATE_NOOP3("DocMgr", "&Open", "dialog 15700.10")},
    {D, 15700, 11, QT_TRANSLATE_NOOP3("DocMgr", "&Close", "dialog 15700.11")},
    {D, 15700, 13, QT_TRANSLATE_NOOP3("DocMgr", "&Groups...", "dialog 15700.13")},
    {D, 15700, 14, QT_TRANSLATE_NOOP3("DocMgr", "&Paths...", "dialog 15700.14")},
    {D, 15700, 15, QT_TRANSLATE_NOOP3("DocMgr", "&Filter...", "dialog 15700.15")},
    {D, 15700, 16, QT_TRANSLATE_NOOP3("DocMgr", "&Sort...", "dialog 15700.16")},
    {D, 15700, 17, QT_TRANSLATE_NOOP3("DocMgr", "Co&lumns...", "dialog 15700.17")},
    {D, 15700, 34, QT_TRANSLATE_NOOP3("DocMgr", "Co&mmands", "dialog 15700.34")},
    {D, 15700, 90, QT_TRANSLATE_NOOP3("DocMgr", "S&ection", "dialog 15700.90")},
    {D, 15700, 92, QT_TRANSLATE_NOOP3("DocMgr", "Gro&up", "dialog 15700.92")},
    {D, 15700, 94, QT_TRANSLATE_NOOP3("DocMgr", "&Read-only", "dialog 15700.94")},
    {D, 15700, 95, QT_TRANSLATE_NOOP3("DocMgr", "Single &view", "dialog 15700.95")},
    // Progress of a long collection.
    {D, 15700, 40, QT_TRANSLATE_NOOP3("DocMgr", "Reading documents: %1 folders, %2 documents so far", "dialog 15700.40")},
    {D, 15700, 41, QT_TRANSLATE_NOOP3("DocMgr", "Document Manager", "dialog 15700.41")},
    // Menu 15700: the file commands.
    {M, 15700, 20, QT_TRANSLATE_NOOP3("DocMgr", "&Delete", "menu 15700.20")},
    {M, 15700, 21, QT_TRANSLATE_NOOP3("DocMgr", "Document &Information...", "menu 15700.21")},
    {M, 15700, 22, QT_TRANSLATE_NOOP3("DocMgr", "&Copy / Move...", "menu 15700.22")},
    {M, 15700, 23, QT_TRANSLATE_NOOP3("DocMgr", "&Rename...", "menu 15700.23")},
    {M, 15700, 24, QT_TRANSLATE_NOOP3("DocMgr", "&Print Documents", "menu 15700.24")},
    {M, 15700, 25, QT_TRANSLATE_NOOP3("DocMgr", "Print &List...", "menu 15700.25")},
    {M, 15700, 26, QT_TRANSLATE_NOOP3("DocMgr", "&Export List...", "menu 15700.26")},
    // Query boxes: delete question; save question (its message is composed at run time).
    {Q, 15700, 0, QT_TRANSLATE_NOOP3("DocMgr", "Do you really want to delete the %1 selected documents?", "query 15700")},
    {Q, 15702, 0, QT_TRANSLATE_NOOP3("DocMgr", "Do you really want to delete the document \"%1\"?", "query 15702")},
    {Q, 15701, 0, QT_TRANSLATE_NOOP3("DocMgr", "The settings have been changed. Keep the changes?", "query 15701")},
};
}  // namespace

std::span<const ResEntry> MainTexts() { return kTexts; }
