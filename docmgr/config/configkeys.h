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

// Keys of a group section.
inline constexpr const char* GroupName = "GROUPNAME";
inline constexpr const char* Section = "SECTION";
inline constexpr const char* FilterTitle = "FILTERTITLE";
inline constexpr const char* FilterTopic = "FILTERTOPIC";
inline constexpr const char* FilterAuthor = "FILTERAUTHOR";
inline constexpr const char* FilterKeywords = "FILTERKEYWORDS";
inline constexpr const char* FilterFiles = "FILTERFILES";
inline constexpr const char* FilterSensitive = "FILTERSENSITIVE";
inline constexpr const char* FilterField = "FILTERFIELD";
// The double L is the key existing files carry; it must stay.
inline constexpr const char* FilterCondition = "FILLTERCONDITION";
inline constexpr const char* FilterValue = "FILTERVALUE";
inline constexpr const char* FilterDate = "FILTERDATE";
inline constexpr const char* FilterTime = "FILTERTIME";
inline constexpr const char* FilterLink = "FILTERLINK";
inline constexpr const char* SortColumnId = "SORTCOLUMNID";
inline constexpr const char* SortOrder = "SORTORDER";
inline constexpr const char* ColumnId = "COLUMNID";
inline constexpr const char* ColumnWidth = "COLUMNWIDTH";
inline constexpr const char* FrozenColumns = "FROZENCOLUMNS";
inline constexpr const char* Info = "INFO";
inline constexpr const char* Paths = "PATHS";
inline constexpr const char* Guis = "GUIS";

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
