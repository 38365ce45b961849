#pragma once
// The compiled-in resource table: one entry per text, by resource id, with its English
// source text. The translations come from the .ts files in resources/translations, looked
// up by context "DocMgr", the source text and the entry's key (e.g. "string 15724").
#include <QtGlobal>
#include <cstdint>
#include <span>

enum class ResKind : uint8_t { String, Dialog, Menu, QueryBox, InfoBox };

struct ResEntry {
    ResKind kind;
    uint16_t id;     // resource id (dialog, menu, box or string)
    uint16_t local;  // control or item id inside a dialog or menu; 0 for the resource itself
    struct {
        const char* source;  // the English text
        const char* key;     // kind and id: what tells equal source texts apart
    } text;
};

// Context of the module's texts in the translation catalogues.
constexpr const char* RES_CONTEXT = "DocMgr";

// Each area of the module keeps its texts in its own file.
std::span<const ResEntry> CoreTexts();      // strings of the list, index, configuration
std::span<const ResEntry> MainTexts();      // main dialog 15700, its menus and boxes
std::span<const ResEntry> SettingsTexts();  // columns, sort, groups, paths, filter dialogs
std::span<const ResEntry> FileOpTexts();    // copy, folder, rename, print dialogs
std::span<const ResEntry> FilterTexts();    // filter dialog

// Looks up an entry in all tables; null when there is none.
const ResEntry* FindResEntry(ResKind kind, uint16_t id, uint16_t local);
