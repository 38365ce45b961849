// Texts of the copy, new-folder, rename, print and printing dialogs.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;

constexpr ResEntry kTexts[] = {
    // Copy or move (15706).
    {D, 15706, 0, "Copy or Move Documents", "Dokumente kopieren oder verschieben"},
    {D, 15706, 22, "&Target folder:", "&Zielordner:"},
    {D, 15706, 18, "OK", "OK"},
    {D, 15706, 19, "Cancel", "Abbrechen"},
    {D, 15706, 35, "&New Folder...", "&Neuer Ordner..."},
    {D, 15706, 101, "&Move (remove the originals)", "&Verschieben (Originale entfernen)"},
    // New folder (15707); the base directory follows the title in brackets.
    {D, 15707, 0, "New Folder", "Neuer Ordner"},
    {D, 15707, 14, "&Name of the new folder:", "&Name des neuen Ordners:"},
    {D, 15707, 18, "OK", "OK"},
    {D, 15707, 19, "Cancel", "Abbrechen"},
    // Rename (15708).
    {D, 15708, 0, "Rename Document", "Dokument umbenennen"},
    {D, 15708, 110, "Current name:", "Bisheriger Name:"},
    {D, 15708, 112, "&New name:", "&Neuer Name:"},
    {D, 15708, 18, "OK", "OK"},
    {D, 15708, 19, "Cancel", "Abbrechen"},
    // Print the list (15709).
    {D, 15709, 0, "Print Document List", "Dokumentliste drucken"},
    {D, 15709, 114, "&Columns to print:", "Zu druckende &Spalten:"},
    {D, 15709, 18, "&Print", "&Drucken"},
    {D, 15709, 19, "Cancel", "Abbrechen"},
    {D, 15709, 136, "P&rinter...", "D&rucker..."},
    {D, 15709, 137, "&Font...", "Schrift&art..."},
    // Printing progress (15710).
    {D, 15710, 0, "Printing", "Drucken"},
    {D, 15710, 136, "The document list is being printed on", "Die Dokumentliste wird gedruckt auf"},
    {D, 15710, 19, "Cancel Printing", "Druck abbrechen"},
};
}  // namespace

std::span<const ResEntry> FileOpTexts() { return kTexts; }
