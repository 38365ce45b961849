#pragma once
// Section and key names of the configuration file, shared by reading and writing so the
// two can never drift apart.
#include <string>

namespace configkeys {
// Sections.
inline constexpr const char* General = "GENERAL";
inline constexpr const char* Groups = "GROUPS";

// Keys of "GENERAL".
inline constexpr const char* ViewMode = "VIEWMODE";
inline constexpr const char* ActualGroup = "ACTUALGROUP";
inline constexpr const char* AccessCopy = "ACCESS_FILECOPY";
inline constexpr const char* AccessDelete = "ACCESS_FILEDELETE";
inline constexpr const char* AccessPrint = "ACCESS_FILEPRINT";
inline constexpr const char* AccessRename = "ACCESS_FILERENAME";

// The keys of a group section are in the table of docmgr/config/groupkeys.cpp.

// Flag and order texts.
inline constexpr const char* True = "TRUE";
inline constexpr const char* False = "FALSE";
inline constexpr const char* Up = "UP";
inline constexpr const char* Down = "DOWN";
inline constexpr const char* Single = "SINGLE";
inline constexpr const char* Multi = "MULTI";
inline constexpr const char* Off = "OFF";

// A numbered key: the name followed directly by the 0-based index in decimal.
inline std::string Numbered(const char* key, unsigned index)
{
    return key + std::to_string(index);
}
}  // namespace configkeys
