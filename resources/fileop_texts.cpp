// Texts of the copy, new-folder, rename, print and printing dialogs.
#include "resources/restable.h"

#include "resources/resids.h"

namespace {
constexpr ResKind D = ResKind::Dialog;

constexpr ResEntry kTexts[] = {
    // Copy or move (15706).
    {D, DLG_COPY, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Copy or Move Documents", "dialog 15706.0")},
    {D, DLG_COPY, COPY_TARGET_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Target folder:", "dialog 15706.22")},
    {D, DLG_COPY, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15706.18")},
    {D, DLG_COPY, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15706.19")},
    {D, DLG_COPY, COPY_NEW_FOLDER, QT_TRANSLATE_NOOP3("DocMgr", "&New Folder...", "dialog 15706.35")},
    {D, DLG_COPY, COPY_MOVE, QT_TRANSLATE_NOOP3("DocMgr", "&Move (remove the originals)", "dialog 15706.101")},
    // New folder (15707); the base directory follows the title in brackets.
    {D, DLG_NEW_FOLDER, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "New Folder", "dialog 15707.0")},
    {D, DLG_NEW_FOLDER, NEW_FOLDER_NAME_LABEL,
     QT_TRANSLATE_NOOP3("DocMgr", "&Name of the new folder:", "dialog 15707.14")},
    {D, DLG_NEW_FOLDER, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15707.18")},
    {D, DLG_NEW_FOLDER, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15707.19")},
    // Rename (15708).
    {D, DLG_RENAME, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Rename Document", "dialog 15708.0")},
    {D, DLG_RENAME, RENAME_CURRENT_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "Current name:", "dialog 15708.110")},
    {D, DLG_RENAME, RENAME_NEW_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&New name:", "dialog 15708.112")},
    {D, DLG_RENAME, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "OK", "dialog 15708.18")},
    {D, DLG_RENAME, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15708.19")},
    // Print the list (15709).
    {D, DLG_PRINT, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Print Document List", "dialog 15709.0")},
    {D, DLG_PRINT, PRINT_COLUMNS_LABEL, QT_TRANSLATE_NOOP3("DocMgr", "&Columns to print:", "dialog 15709.114")},
    {D, DLG_PRINT, CTL_OK, QT_TRANSLATE_NOOP3("DocMgr", "&Print", "dialog 15709.18")},
    {D, DLG_PRINT, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel", "dialog 15709.19")},
    {D, DLG_PRINT, PRINT_PRINTER, QT_TRANSLATE_NOOP3("DocMgr", "P&rinter...", "dialog 15709.136")},
    {D, DLG_PRINT, PRINT_FONT, QT_TRANSLATE_NOOP3("DocMgr", "&Font...", "dialog 15709.137")},
    {D, DLG_PRINT, PRINT_LANDSCAPE, QT_TRANSLATE_NOOP3("DocMgr", "&Landscape", "dialog 15709.138")},
    {D, DLG_PRINT, PRINT_FIT_WARNING,
     QT_TRANSLATE_NOOP3("DocMgr",
                        "Only %1 of the %2 chosen columns fit across the page; "
                        "the others are cut off. Choose fewer columns, a smaller font or landscape.",
                        "dialog 15709.139")},
    // Printing progress (15710).
    {D, DLG_PRINTING, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Printing", "dialog 15710.0")},
    {D, DLG_PRINTING, PRINTING_MESSAGE,
     QT_TRANSLATE_NOOP3("DocMgr", "The document list is being printed on", "dialog 15710.136")},
    {D, DLG_PRINTING, CTL_CANCEL, QT_TRANSLATE_NOOP3("DocMgr", "Cancel Printing", "dialog 15710.19")},
    // Export of the list (15711): title and the file type offered.
    {D, DLG_EXPORT, CTL_TITLE, QT_TRANSLATE_NOOP3("DocMgr", "Export List", "dialog 15711.0")},
    {D, DLG_EXPORT, EXPORT_FILE_TYPES, QT_TRANSLATE_NOOP3("DocMgr", "CSV files (*.csv)", "dialog 15711.1")},
};
}  // namespace

std::span<const ResEntry> FileOpTexts()
{
    return kTexts;
}
