#pragma once
// One named group of view settings: directories, filter, sort order, columns.
#include <array>
#include <cstdint>
#include <string>

class Config;

constexpr uint16_t NO_COLUMN = 65535;  // no sort column / no filter row
constexpr unsigned COLUMN_SLOTS = 20;
constexpr unsigned FILTER_ROWS = 3;

class DocGroupConfig {
public:
    // Defaults: pattern "*", no filter row, no sort, slots 1..20 at default width,
    // 3 frozen columns, info captions "Info 0".."Info 3".
    DocGroupConfig();
    // Reads group `group` from the section named by its number; missing keys read as
    // empty text (so as 0, false and "" rather than the defaults above).
    DocGroupConfig(Config* config, uint16_t group);
    // A new group with the look of `pattern`: its file pattern, case flag, filter rows
    // without their values, links, sort, columns and info captions, but no name, section,
    // text filters, filter values, paths or path flags. A new group starts from the
    // working group so. (Copying and assigning take every field.)
    static DocGroupConfig LookOf(const DocGroupConfig& pattern);

    // The group as one line of text (see ImplDocConfig::Export).
    std::string Export() const;

    std::string groupName;
    std::string section;
    std::string filterTitle;
    std::string filterTopic;
    std::string filterAuthor;
    std::string filterKeywords;
    std::string filterFiles;
    bool filterSensitive = false;
    std::array<uint16_t, FILTER_ROWS> filterField{};
    std::array<int32_t, FILTER_ROWS> filterCondition{};
    std::array<std::string, FILTER_ROWS> filterValue;
    std::array<uint32_t, FILTER_ROWS> filterDate{};
    std::array<uint32_t, FILTER_ROWS> filterTime{};
    std::array<int32_t, 2> filterLink{};
    uint16_t sortColumnId = NO_COLUMN;
    bool sortAscending = true;
    std::array<uint16_t, COLUMN_SLOTS> columnId{};
    std::array<uint16_t, COLUMN_SLOTS> columnWidth{};
    uint16_t frozenColumns = 3;
    std::array<std::string, 4> infoLabel;
    std::string paths;  // ";"-separated directories; "/**" at the end includes subdirectories
    std::string guis;   // one flag character per path entry; "1" = active and shown
};
