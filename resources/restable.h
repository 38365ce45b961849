#pragma once
// The compiled-in resource table: one entry per text, English and German.
#include <cstdint>
#include <span>

enum class ResKind : uint8_t { String, Dialog, Menu, QueryBox, InfoBox };

struct ResEntry {
    ResKind kind;
    uint16_t id;      // resource id (dialog, menu, box or string)
    uint16_t local;   // control or item id inside a dialog or menu; 0 for the resource itself
    const char* en;
    const char* de;
};

// Each area of the module keeps its texts in its own file.
std::span<const ResEntry> CoreTexts();      // strings of the list, index, configuration
std::span<const ResEntry> MainTexts();      // main dialog 15700, its menus and boxes
std::span<const ResEntry> SettingsTexts();  // columns, sort, groups, paths, filter dialogs
std::span<const ResEntry> FileOpTexts();    // copy, folder, rename, print dialogs
std::span<const ResEntry> FilterTexts();    // filter dialog

// Looks up an entry in all tables; null when there is none.
const ResEntry* FindResEntry(ResKind kind, uint16_t id, uint16_t local);
