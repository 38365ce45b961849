// Texts of the main dialog 15700, its commands menu and query boxes.
#include "resources/restable.h"

#include "resources/resids.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;
constexpr ResKind Q = ResKind::QueryBox;

constexpr ResEntry kTexts[] = {
    // Dialog 15700: title and controls by their local ids.
    {D, DLG_MANAGER, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Document Manager", "dialog 15700.0")},
    {D, DLG_MANAGER, MANAGER_OPEN, QT_TRANSLATE_NOOP3("DocMgr", "&Open", "dialog 15700.10")},
    {D, DLG_MANAGER, MANAGER_CLOSE, QT_TRANSLATE_NOOP3("DocMgr", "&Close", "dialog 15700.11")},
    {D, DLG_MANAGER, MANAGER_GROUPS, QT_TRANSLATE_NOOP3("DocMgr", "&Groups...", "dialog 15700.13")},
    {D, DLG_MANAGER, MANAGER_PATHS, QT_TRANSLATE_NOOP3("DocMgr", "&Paths...", "dialog 15700.14")},
    {D, DLG_MANAGER, MANAGER_FILTER, QT_TRANSLATE_NOOP3("DocMgr", "&Filter...", "dialog 15700.15")},
    {D, DLG_MANAGER, MANAGER_SORT, QT_TRANSLATE_NOOP3("DocMgr", "&Sort...", "dialog 15700.16")},
    {D, DLG_MANAGER, MANAGER_COLUMNS, QT_TRANSLATE_NOOP3("DocMgr", "Co&lumns...", "dialog 15700.17")},
    {D, DLG_MANAGER, MANAGER_COMMANDS, QT_TRANSLATE_NOOP3("DocMgr", "Co&mmands", "dialog 15700.34")},
    {D, DLG_MANAGER, MANAGER_SECTION_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "S&ection", "dialog 15700.90")},
    {D, DLG_MANAGER, MANAGER_GROUP_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "Gro&up", "dialog 15700.92")},
    {D, DLG_MANAGER, MANAGER_READ_ONLY, QT_TRANSLATE_NOOP3("DocMgr", "&Read-only", "dialog 15700.94")},
    {D, DLG_MANAGER, MANAGER_SINGLE_VIEW, QT_TRANSLATE_NOOP3("DocMgr", "Single &view", "dialog 15700.95")},
    // Progress of a long collection.
    {D, DLG_MANAGER, MANAGER_PROGRESS,
     QT_TRANSLATE_NOOP3("DocMgr", "Reading documents: %1 folders, %2 documents so far", "dialog 15700.40")},
    {D, DLG_MANAGER, MANAGER_PROGRESS_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Document Manager", "dialog 15700.41")},
    // The find bar, opened with the find key.
    {D, DLG_MANAGER, MANAGER_FIND_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "F&ind:", "dialog 15700.50")},
    {D, DLG_MANAGER, MANAGER_FIND_FIELD,
     QT_TRANSLATE_NOOP3("DocMgr", "Text in any column; Esc closes", "dialog 15700.51")},
    {D, DLG_MANAGER, MANAGER_FIND_COUNT, QT_TRANSLATE_NOOP3("DocMgr", "%1 of %2 documents", "dialog 15700.52")},
    // Menu 15700: the file commands.
    {M, MENU_COMMANDS, CMD_DELETE, QT_TRANSLATE_NOOP3("DocMgr", "&Delete", "menu 15700.20")},
    {M, MENU_COMMANDS, CMD_DOCINFO, QT_TRANSLATE_NOOP3("DocMgr", "Document &Information...", "menu 15700.21")},
    {M, MENU_COMMANDS, CMD_COPY, QT_TRANSLATE_NOOP3("DocMgr", "&Copy / Move...", "menu 15700.22")},
    {M, MENU_COMMANDS, CMD_RENAME, QT_TRANSLATE_NOOP3("DocMgr", "&Rename...", "menu 15700.23")},
    {M, MENU_COMMANDS, CMD_PRINTDOCS, QT_TRANSLATE_NOOP3("DocMgr", "&Print Documents", "menu 15700.24")},
    {M, MENU_COMMANDS, CMD_PRINTLIST, QT_TRANSLATE_NOOP3("DocMgr", "Print &List...", "menu 15700.25")},
    {M, MENU_COMMANDS, CMD_EXPORTLIST, QT_TRANSLATE_NOOP3("DocMgr", "&Export List...", "menu 15700.26")},
    {M, MENU_COMMANDS, CMD_BATCHINFO,
     QT_TRANSLATE_NOOP3("DocMgr", "Edit Information of the &Selected Documents...", "menu 15700.27")},
    {M, MENU_COMMANDS, CMD_UNDO, QT_TRANSLATE_NOOP3("DocMgr", "&Undo", "menu 15700.28")},
    {M, MENU_COMMANDS, CMD_REDO, QT_TRANSLATE_NOOP3("DocMgr", "Red&o", "menu 15700.29")},
    // Query boxes: delete question; save question (its message is composed at run time).
    {Q, QUERY_DELETE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Move the %1 selected documents to the trash?", "query 15700")},
    {Q, QUERY_DELETE_ONE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Move the document \"%1\" to the trash?", "query 15702")},
    {Q, QUERY_DELETE_FOR_GOOD, 0,
     QT_TRANSLATE_NOOP3("DocMgr", "No trash can take these files:\n%1\n\nDelete them for good? This cannot be undone.",
                        "query 15703")},
    // Information of several documents and its preview.
    {D, DLG_BATCH_INFO, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Information of Documents", "dialog 15712.0")},
    {D, DLG_BATCH_INFO, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "&Preview...", "dialog 15712.18")},
    {D, DLG_BATCH_INFO, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15712.19")},
    {D, DLG_BATCH_INFO, BATCH_INTRO,
     QT_TRANSLATE_NOOP3("DocMgr", "%1 documents. Only the fields you change are written.", "dialog 15712.20")},
    {D, DLG_BATCH_INFO, BATCH_VARIOUS, QT_TRANSLATE_NOOP3("DocMgr", "(various)", "dialog 15712.21")},
    {D, DLG_BATCH_INFO, BATCH_UNSUPPORTED,
     QT_TRANSLATE_NOOP3("DocMgr", "This program cannot write the information of documents.", "dialog 15712.22")},
    {D, DLG_BATCH_INFO, BATCH_FAILED,
     QT_TRANSLATE_NOOP3("DocMgr", "These documents were left as they were:", "dialog 15712.23")},
    {D, DLG_BATCH_PREVIEW, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Preview of the Changes", "dialog 15713.0")},
    {D, DLG_BATCH_PREVIEW, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "&Write", "dialog 15713.18")},
    {D, DLG_BATCH_PREVIEW, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15713.19")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_INTRO,
     QT_TRANSLATE_NOOP3("DocMgr", "These values will be written:", "dialog 15713.20")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_DOCUMENT, QT_TRANSLATE_NOOP3("DocMgr", "Document", "dialog 15713.21")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_FIELD, QT_TRANSLATE_NOOP3("DocMgr", "Field", "dialog 15713.22")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_OLD, QT_TRANSLATE_NOOP3("DocMgr", "Old value", "dialog 15713.23")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_NEW, QT_TRANSLATE_NOOP3("DocMgr", "New value", "dialog 15713.24")},
    {D, DLG_BATCH_PREVIEW, PREVIEW_NOT_WRITTEN, QT_TRANSLATE_NOOP3("DocMgr", "not written: %1", "dialog 15713.25")},
    {Q, QUERY_SAVE, 0,
     QT_TRANSLATE_NOOP3("DocMgr", "The settings have been changed. Keep the changes?", "query 15701")},
};
}  // namespace

std::span<const ResEntry> MainTexts()
{
    return kTexts;
}
