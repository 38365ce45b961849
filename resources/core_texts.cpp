// String resources shared by the list, the index, the configuration and the dialogs.
#include "resources/restable.h"

namespace {
constexpr ResKind S = ResKind::String;

constexpr ResEntry kTexts[] = {
    // Column titles, by column id (id n: 15700 + n for 3..15).
    {S, 15700, 0, QT_TRANSLATE_NOOP3("DocMgr", "File name", "string 15700")},
    {S, 15701, 0, QT_TRANSLATE_NOOP3("DocMgr", "Size", "string 15701")},
    {S, 15702, 0, QT_TRANSLATE_NOOP3("DocMgr", "Directory", "string 15702")},
    {S, 15703, 0, QT_TRANSLATE_NOOP3("DocMgr", "Title", "string 15703")},
    {S, 15704, 0, QT_TRANSLATE_NOOP3("DocMgr", "Topic", "string 15704")},
    {S, 15705, 0, QT_TRANSLATE_NOOP3("DocMgr", "Created on", "string 15705")},
    {S, 15706, 0, QT_TRANSLATE_NOOP3("DocMgr", "Created at", "string 15706")},
    {S, 15707, 0, QT_TRANSLATE_NOOP3("DocMgr", "Author", "string 15707")},
    {S, 15708, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified on", "string 15708")},
    {S, 15709, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified at", "string 15709")},
    {S, 15710, 0, QT_TRANSLATE_NOOP3("DocMgr", "Modified by", "string 15710")},
    {S, 15711, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed on", "string 15711")},
    {S, 15712, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed at", "string 15712")},
    {S, 15713, 0, QT_TRANSLATE_NOOP3("DocMgr", "Printed by", "string 15713")},
    {S, 15714, 0, QT_TRANSLATE_NOOP3("DocMgr", "Comment", "string 15714")},
    {S, 15715, 0, QT_TRANSLATE_NOOP3("DocMgr", "Keywords", "string 15715")},
    // Configuration: section and name of a first group, stem of new group names.
    {S, 15716, 0, QT_TRANSLATE_NOOP3("DocMgr", "General", "string 15716")},
    {S, 15717, 0, QT_TRANSLATE_NOOP3("DocMgr", "Standard", "string 15717")},
    {S, 15718, 0, QT_TRANSLATE_NOOP3("DocMgr", " documents in ", "string 15718")},
    {S, 15719, 0, QT_TRANSLATE_NOOP3("DocMgr", "Group", "string 15719")},
    {S, 15720, 0, QT_TRANSLATE_NOOP3("DocMgr", ".docindex", "string 15720")},
    {S, 15721, 0, QT_TRANSLATE_NOOP3("DocMgr", "No document manager settings were found. A first group named \"Standard\" has been "
     "created; choose its directories with the Paths button.", "string 15721")},
    {S, 15722, 0, QT_TRANSLATE_NOOP3("DocMgr", "*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;"
     "*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;"
     "*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf", "string 15722")},
    {S, 15723, 0, QT_TRANSLATE_NOOP3("DocMgr", "/**", "string 15723")},
    // Messages: text before and after a file or folder name.
    {S, 15724, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15724")},
    {S, 15725, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be deleted.", "string 15725")},
    {S, 15726, 0, QT_TRANSLATE_NOOP3("DocMgr", "The folder ", "string 15726")},
    {S, 15727, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be created.", "string 15727")},
    {S, 15728, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15728")},
    {S, 15729, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be copied.", "string 15729")},
    {S, 15730, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15730")},
    {S, 15731, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be moved.", "string 15731")},
    {S, 15732, 0, QT_TRANSLATE_NOOP3("DocMgr", "The file ", "string 15732")},
    {S, 15733, 0, QT_TRANSLATE_NOOP3("DocMgr", " could not be renamed.", "string 15733")},
    // Summary pane labels in front of a time and a name.
    {S, 15734, 0, QT_TRANSLATE_NOOP3("DocMgr", "at", "string 15734")},
    {S, 15735, 0, QT_TRANSLATE_NOOP3("DocMgr", "by", "string 15735")},
    // Save question around the group name.
    {S, 15736, 0, QT_TRANSLATE_NOOP3("DocMgr", "The settings of the group \"", "string 15736")},
    {S, 15737, 0, QT_TRANSLATE_NOOP3("DocMgr", "\" have been changed. Keep the changes?", "string 15737")},
    // Open button in open mode and otherwise.
    {S, 15738, 0, QT_TRANSLATE_NOOP3("DocMgr", "&Open", "string 15738")},
    {S, 15739, 0, QT_TRANSLATE_NOOP3("DocMgr", "&Select", "string 15739")},
    // Print job name.
    {S, 15743, 0, QT_TRANSLATE_NOOP3("DocMgr", "Document list", "string 15743")},
    // Export of the list: text before and after the file name.
    {S, 15744, 0, QT_TRANSLATE_NOOP3("DocMgr", "The list could not be written to ", "string 15744")},
    {S, 15745, 0, QT_TRANSLATE_NOOP3("DocMgr", ".", "string 15745")},
    // Context menu of the folder trees.
    {S, 15746, 0, QT_TRANSLATE_NOOP3("DocMgr", "Show &hidden folders", "string 15746")},
};
}  // namespace

std::span<const ResEntry> CoreTexts() { return kTexts; }
