// String resources shared by the list, the index, the configuration and the dialogs.
#include "resources/restable.h"

#include "resources/resids.h"

namespace {
constexpr ResKind S = ResKind::String;

constexpr ResEntry kTexts[] = {
    // Column titles, by column id (id n: 15700 + n for 3..15).
    {S, STR_COL_NAME, 0, QT_TRANSLATE_NOOP3("DocMgr", "File name", "string 15700")},
    {S, STR_COL_SIZE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Size", "string 15701")},
    {S, STR_COL_DIRECTORY, 0, QT_TRANSLATE_NOOP3("DocMgr", "Directory", "string 15702")},
    {S, STR_COL_TITLE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Title", "string 15703")},
    {S, STR_COL_TOPIC, 0, QT_TRANSLATE_NOOP3("DocMgr", "Topic", "string 15704")},
    {S, STR_COL_CREATED_DATE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Created on", "string 15705")},
    {S, STR_COL_CREATED_TIME, 0, QT_TRANSLATE_NOOP3("DocMgr", "Created at", "string 15706")},
    {S, STR_COL_AUTHOR, 0, QT_TRANSLATE_NOOP3("DocMgr", "Author", "string 15707")},
    {S, STR_COL_MODIFIED_DATE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified on", "string 15708")},
    {S, STR_COL_MODIFIED_TIME, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified at", "string 15709")},
    {S, STR_COL_MODIFIED_BY, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified by", "string 15710")},
    {S, STR_COL_PRINTED_DATE, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed on", "string 15711")},
    {S, STR_COL_PRINTED_TIME, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed at", "string 15712")},
    {S, STR_COL_PRINTED_BY, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed by", "string 15713")},
    {S, STR_COL_COMMENT, 0, QT_TRANSLATE_NOOP3("DocMgr", "Comment", "string 15714")},
    {S, STR_COL_KEYWORDS, 0, QT_TRANSLATE_NOOP3("DocMgr", "Keywords", "string 15715")},
    // Configuration: section and name of a first group, stem of new group names.
    {S, STR_DEFAULT_SECTION, 0, QT_TRANSLATE_NOOP3("DocMgr", "General", "string 15716")},
    {S, STR_FIRST_GROUP, 0, QT_TRANSLATE_NOOP3("DocMgr", "Standard", "string 15717")},
    {S, STR_COUNT_LINE, 0, QT_TRANSLATE_NOOP3("DocMgr", " documents in ", "string 15718")},
    {S, STR_NEW_GROUP_STEM, 0, QT_TRANSLATE_NOOP3("DocMgr", "Group", "string 15719")},
    {S, STR_INDEX_NAME, 0, QT_TRANSLATE_NOOP3("DocMgr", ".docindex", "string 15720")},
    {S, STR_NEW_CONFIG, 0,
     QT_TRANSLATE_NOOP3("DocMgr",
                        "No document manager settings were found. A first group named \"Standard\" has been "
                        "created; choose its directories with the Paths button.",
                        "string 15721")},
    {S, STR_DEF_EXTENSIONS, 0,
     QT_TRANSLATE_NOOP3("DocMgr",
                        "*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;"
                        "*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;"
                        "*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf",
                        "string 15722")},
    {S, STR_SUBDIR_MARKER, 0, QT_TRANSLATE_NOOP3("DocMgr", "/**", "string 15723")},
    // Messages: text before and after a file or folder name.
    {S, STR_DELETE_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15724")},
    {S, STR_DELETE_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be deleted.", "string 15725")},
    {S, STR_FOLDER_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The folder ", "string 15726")},
    {S, STR_FOLDER_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be created.", "string 15727")},
    {S, STR_COPY_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15728")},
    {S, STR_COPY_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be copied.", "string 15729")},
    {S, STR_MOVE_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15730")},
    {S, STR_MOVE_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be moved.", "string 15731")},
    {S, STR_RENAME_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15732")},
    {S, STR_RENAME_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be renamed.", "string 15733")},
    // Summary pane labels in front of a time and a name.
    {S, STR_AT, 0, QT_TRANSLATE_NOOP3("DocMgr", "at", "string 15734")},
    {S, STR_BY, 0, QT_TRANSLATE_NOOP3("DocMgr", "by", "string 15735")},
    // Save question around the group name.
    {S, STR_SAVE_QUESTION, 0, QT_TRANSLATE_NOOP3("DocMgr", "The settings of the group \"", "string 15736")},
    {S, STR_SAVE_QUESTION_END, 0,
     QT_TRANSLATE_NOOP3("DocMgr", "\" have been changed. Keep the changes?", "string 15737")},
    // Open button in open mode and otherwise.
    {S, STR_OPEN, 0, QT_TRANSLATE_NOOP3("DocMgr", "&Open", "string 15738")},
    {S, STR_SELECT, 0, QT_TRANSLATE_NOOP3("DocMgr", "&Select", "string 15739")},
    // Print job name.
    {S, STR_PRINT_JOB, 0, QT_TRANSLATE_NOOP3("DocMgr", "Document list", "string 15743")},
    // Export of the list: text before and after the file name.
    {S, STR_EXPORT_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The list could not be written to ", "string 15744")},
    {S, STR_EXPORT_FAILED_END, 0, QT_TRANSLATE_NOOP3("DocMgr", ".", "string 15745")},
    // Context menu of the folder trees.
    {S, STR_SHOW_HIDDEN, 0, QT_TRANSLATE_NOOP3("DocMgr", "Show &hidden folders", "string 15746")},
    // Undo and redo of the file commands.
    {S, STR_UNDO_STALE, 0,
     QT_TRANSLATE_NOOP3("DocMgr", "This step can no longer be undone: %1 has changed since. Nothing was changed.",
                        "string 15747")},
    {S, STR_REDO_STALE, 0,
     QT_TRANSLATE_NOOP3("DocMgr", "This step can no longer be redone: %1 has changed since. Nothing was changed.",
                        "string 15748")},
    {S, STR_UNDO_FAILED, 0, QT_TRANSLATE_NOOP3("DocMgr", "The step could not be completed at %1.", "string 15749")},
};
}  // namespace

std::span<const ResEntry> CoreTexts()
{
    return kTexts;
}
