// String resources shared by the list, the index, the configuration and the dialogs.
#include "resources/restable.h"

namespace {
constexpr ResKind S = ResKind::String;

constexpr ResEntry kTexts[] = {
    // Column titles, by column id (id n: 15700 + n for 3..15).
    {S, 15700, 0, "File name", "Dateiname"},
    {S, 15701, 0, "Size", "Größe"},
    {S, 15702, 0, "Directory", "Verzeichnis"},
    {S, 15703, 0, "Title", "Titel"},
    {S, 15704, 0, "Topic", "Thema"},
    {S, 15705, 0, "Created on", "Erstellt am"},
    {S, 15706, 0, "Created at", "Erstellt um"},
    {S, 15707, 0, "Author", "Autor"},
    {S, 15708, 0, "Modified on", "Geändert am"},
    {S, 15709, 0, "Modified at", "Geändert um"},
    {S, 15710, 0, "Modified by", "Geändert von"},
    {S, 15711, 0, "Printed on", "Gedruckt am"},
    {S, 15712, 0, "Printed at", "Gedruckt um"},
    {S, 15713, 0, "Printed by", "Gedruckt von"},
    {S, 15714, 0, "Comment", "Kommentar"},
    {S, 15715, 0, "Keywords", "Stichwörter"},
    // Configuration: section and name of a first group, stem of new group names.
    {S, 15716, 0, "General", "Allgemein"},
    {S, 15717, 0, "Standard", "Standard"},
    {S, 15718, 0, " documents in ", " Dokumente in "},
    {S, 15719, 0, "Group", "Gruppe"},
    {S, 15720, 0, ".docindex", ".docindex"},
    {S, 15721, 0,
     "No document manager settings were found. A first group named \"Standard\" has been "
     "created; choose its directories with the Paths button.",
     "Es wurden keine Einstellungen für die Dokumentverwaltung gefunden. Eine erste Gruppe "
     "\"Standard\" wurde angelegt; wählen Sie ihre Verzeichnisse mit der Schaltfläche Pfade."},
    {S, 15722, 0,
     "*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;"
     "*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;"
     "*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf",
     "*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;"
     "*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;"
     "*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf"},
    {S, 15723, 0, "/**", "/**"},
    // Messages: text before and after a file or folder name.
    {S, 15724, 0, "The file ", "Die Datei "},
    {S, 15725, 0, " could not be deleted.", " konnte nicht gelöscht werden."},
    {S, 15726, 0, "The folder ", "Der Ordner "},
    {S, 15727, 0, " could not be created.", " konnte nicht angelegt werden."},
    {S, 15728, 0, "The file ", "Die Datei "},
    {S, 15729, 0, " could not be copied. The target may already exist.",
     " konnte nicht kopiert werden. Das Ziel ist vielleicht schon vorhanden."},
    {S, 15730, 0, "The file ", "Die Datei "},
    {S, 15731, 0, " could not be moved. The target may already exist.",
     " konnte nicht verschoben werden. Das Ziel ist vielleicht schon vorhanden."},
    {S, 15732, 0, "The file ", "Die Datei "},
    {S, 15733, 0, " could not be renamed. A file of that name may already exist.",
     " konnte nicht umbenannt werden. Eine Datei dieses Namens ist vielleicht schon vorhanden."},
    // Summary pane labels in front of a time and a name.
    {S, 15734, 0, "at", "um"},
    {S, 15735, 0, "by", "von"},
    // Save question around the group name.
    {S, 15736, 0, "The settings of the group \"", "Die Einstellungen der Gruppe \""},
    {S, 15737, 0, "\" have been changed. Keep the changes?",
     "\" wurden geändert. Sollen die Änderungen übernommen werden?"},
    // Open button in open mode and otherwise.
    {S, 15738, 0, "&Open", "Ö&ffnen"},
    {S, 15739, 0, "&Select", "&Auswählen"},
    // Print job name.
    {S, 15743, 0, "Document list", "Dokumentliste"},
};
}  // namespace

std::span<const ResEntry> CoreTexts() { return kTexts; }
