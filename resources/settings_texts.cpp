// Texts of the columns, sort, groups and paths dialogs and the groups dialog's settings menu.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;
constexpr ResKind M = ResKind::Menu;

constexpr ResEntry kTexts[] = {
    // Paths dialog.
    {D, 15701, 0, "Directories of the Group", "Verzeichnisse der Gruppe"},
    {D, 15701, 20, "&Chosen directories:", "&Gewählte Verzeichnisse:"},
    {D, 15701, 22, "All &directories:", "&Alle Verzeichnisse:"},
    {D, 15701, 26, "&Remove", "&Entfernen"},
    {D, 15701, 226, "&Include subdirectories", "&Unterverzeichnisse einbeziehen"},  // check box 26
    {D, 15701, 27, "Where the group's documents are", "Wo die Dokumente der Gruppe liegen"},
    {D, 15701, 32, "&Add >>", "&Hinzufügen >>"},
    {D, 15701, 33, "Remove a&ll", "A&lle entfernen"},
    {D, 15701, 18, "OK", "OK"},
    {D, 15701, 19, "Cancel", "Abbrechen"},
    // Sort dialog.
    {D, 15703, 0, "Sort", "Sortieren"},
    {D, 15703, 72, "&Sort by:", "&Sortieren nach:"},
    {D, 15703, 71, "Order", "Reihenfolge"},
    {D, 15703, 28, "&Ascending", "&Aufsteigend"},
    {D, 15703, 29, "&Descending", "A&bsteigend"},
    {D, 15703, 18, "OK", "OK"},
    {D, 15703, 19, "Cancel", "Abbrechen"},
    // Columns dialog.
    {D, 15704, 0, "Columns", "Spalten"},
    {D, 15704, 81, "Column order", "Reihenfolge der Spalten"},
    {D, 15704, 82, "Columns above the line stay in place when the list scrolls sideways.",
     "Spalten über der Linie bleiben stehen, wenn die Liste seitlich rollt."},
    {D, 15704, 30, "Move up (Ctrl+Up)", "Nach oben (Strg+Auf)"},
    {D, 15704, 31, "Move down (Ctrl+Down)", "Nach unten (Strg+Ab)"},
    {D, 15704, 18, "OK", "OK"},
    {D, 15704, 19, "Cancel", "Abbrechen"},
    // Groups dialog.
    {D, 15705, 0, "Groups", "Gruppen"},
    {D, 15705, 13, "Groups", "Gruppen"},
    {D, 15705, 14, "&Name:", "&Name:"},
    {D, 15705, 10, "S&ection:", "&Bereich:"},
    {D, 15705, 16, "Group", "Gruppe"},
    {D, 15705, 18, "OK", "OK"},
    {D, 15705, 11, "Cancel", "Abbrechen"},
    {D, 15705, 22, "Se&ttings", "&Einstellungen"},
    {D, 15705, 23, "&More", "&Mehr"},
    {D, 15705, 20, "Ne&w", "Ne&u"},
    {D, 15705, 24, "C&hange", "Än&dern"},
    {D, 15705, 21, "&Delete", "&Löschen"},
    // Settings menu of the groups dialog.
    {M, 15705, 10, "&Directories...", "&Verzeichnisse..."},
    {M, 15705, 11, "&Filter...", "&Filter..."},
    {M, 15705, 12, "&Sort...", "&Sortieren..."},
    {M, 15705, 13, "&Columns...", "S&palten..."},
    {M, 15705, 14, "S&tore Current Settings", "Aktuelle Einstellungen &übernehmen"},
};
}  // namespace

std::span<const ResEntry> SettingsTexts() { return kTexts; }
