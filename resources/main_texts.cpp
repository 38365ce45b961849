// Texts of the main dialog 15700, its commands menu and query boxes.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;
constexpr ResKind Q = ResKind::QueryBox;

constexpr ResEntry kTexts[] = {
    // Dialog 15700: title and controls by their local ids.
    {D, 15700, 0, "Document Manager", "Dokumentverwaltung"},
    {D, 15700, 10, "&Open", "Ö&ffnen"},
    {D, 15700, 11, "&Close", "&Schließen"},
    {D, 15700, 13, "&Groups...", "&Gruppen..."},
    {D, 15700, 14, "&Paths...", "&Pfade..."},
    {D, 15700, 15, "&Filter...", "F&ilter..."},
    {D, 15700, 16, "&Sort...", "S&ortieren..."},
    {D, 15700, 17, "Co&lumns...", "Spa&lten..."},
    {D, 15700, 34, "Co&mmands", "Befe&hle"},
    {D, 15700, 90, "S&ection", "&Bereich"},
    {D, 15700, 92, "Gro&up", "Gr&uppe"},
    {D, 15700, 94, "&Read-only", "Sch&reibgeschützt"},
    {D, 15700, 95, "Single &view", "&Einzelansicht"},
    // Progress of a long collection.
    {D, 15700, 40, "Reading documents: %1 folders, %2 documents so far",
     "Dokumente werden gelesen: bisher %1 Ordner, %2 Dokumente"},
    {D, 15700, 41, "Document Manager", "Dokumentverwaltung"},
    // Menu 15700: the file commands.
    {M, 15700, 20, "&Delete", "&Löschen"},
    {M, 15700, 21, "Document &Information...", "Dokument&info..."},
    {M, 15700, 22, "&Copy / Move...", "&Kopieren / Verschieben..."},
    {M, 15700, 23, "&Rename...", "&Umbenennen..."},
    {M, 15700, 24, "&Print Documents", "Dokumente &drucken"},
    {M, 15700, 25, "Print &List...", "&Liste drucken..."},
    // Query boxes: delete question; save question (its message is composed at run time).
    {Q, 15700, 0, "Do you really want to delete the selected documents?",
     "Wollen Sie die ausgewählten Dokumente wirklich löschen?"},
    {Q, 15701, 0, "The settings have been changed. Keep the changes?",
     "Die Einstellungen wurden geändert. Sollen die Änderungen übernommen werden?"},
};
}  // namespace

std::span<const ResEntry> MainTexts() { return kTexts; }
