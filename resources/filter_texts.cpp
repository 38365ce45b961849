// Texts of the filter dialog 15702.
#include "resources/restable.h"

namespace {
constexpr ResKind D = ResKind::Dialog;

constexpr ResEntry kTexts[] = {
    {D, 15702, 0, "Filter", "Filter"},
    {D, 15702, 1, "&Title:", "&Titel:"},
    {D, 15702, 2, "T&opic:", "Th&ema:"},
    {D, 15702, 3, "&Author:", "&Autor:"},
    {D, 15702, 4, "&Keywords:", "&Stichwörter:"},
    {D, 15702, 5, "File &names:", "Datei&namen:"},
    {D, 15702, 6, "Match &case", "Groß-/Kleinschreibung &beachten"},
    {D, 15702, 7, "Text", "Text"},
    {D, 15702, 8, "Conditions", "Bedingungen"},
    {D, 15702, 9, "(no condition)", "(keine Bedingung)"},
    // Conditions by code.
    {D, 15702, 20, "equal to", "gleich"},
    {D, 15702, 21, "not less than", "nicht kleiner als"},
    {D, 15702, 22, "not greater than", "nicht größer als"},
    {D, 15702, 23, "greater than", "größer als"},
    {D, 15702, 24, "less than", "kleiner als"},
    {D, 15702, 25, "not equal to", "ungleich"},
    {D, 15702, 26, "matches pattern", "entspricht Muster"},
    // Links by code.
    {D, 15702, 30, "(end)", "(Ende)"},
    {D, 15702, 31, "and", "und"},
    {D, 15702, 32, "or", "oder"},
    {D, 15702, 40, "OK", "OK"},
    {D, 15702, 41, "Cancel", "Abbrechen"},
    {D, 15702, 42, "Wildcards: * any text, ? one character",
     "Platzhalter: * beliebiger Text, ? ein Zeichen"},
};
}  // namespace

std::span<const ResEntry> FilterTexts() { return kTexts; }
