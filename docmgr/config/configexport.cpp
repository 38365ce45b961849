// The one-line text image of the configuration handed to the host. It is produced only,
// never parsed, so nothing in it is escaped.
#include <string>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/config/impldocconfig.h"

namespace {
const char* Flag(bool value) { return value ? "T" : "F"; }

std::string Bracketed(const std::string& text) { return "[" + text + "]"; }
}  // namespace

std::string DocGroupConfig::Export() const
{
    std::string out = groupName + ";" + section + ";";
    out += Bracketed(filterTitle) + Bracketed(filterTopic) + Bracketed(filterAuthor) +
           Bracketed(filterKeywords) + Bracketed(filterFiles);
    out += Bracketed(Flag(filterSensitive));

    out += "(";
    for (unsigned i = 0; i < FILTER_ROWS; ++i) {
        out += "[" + std::to_string(filterField[i]) + ";" + std::to_string(filterCondition[i]) +
               ";" + filterValue[i] + ";" + std::to_string(filterDate[i]) + ";" +
               std::to_string(filterTime[i]) + ";";
        if (i < filterLink.size())
            out += std::to_string(filterLink[i]) + ";";
        out += "]";
    }
    out += ")";

    out += std::to_string(sortColumnId) + ";" + Flag(sortAscending) + ";";

    // A column id travels as one letter: ids 1..20 give "B".."U".
    out += "[";
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i) {
        out += char(uint8_t((columnId[i] & 0xFF) + 65));
        out += std::to_string(columnWidth[i]) + ";";
    }
    out += "]";

    out += std::to_string(frozenColumns) + ";";
    out += "[";
    for (const std::string& label : infoLabel)
        out += label + ";";
    out += "]";
    out += Bracketed(paths) + Bracketed(guis);
    return out;
}

std::string ImplDocConfig::Export() const
{
    std::string out = "@DocManager[2.1]";
    out += Bracketed(Flag(singleView));
    out += Bracketed(std::to_string(actualGroup));
    out += Bracketed(std::to_string(groups_.size()));
    // Opened by a bracket, closed by a brace: the format hosts already read.
    for (const auto& group : groups_)
        out += "[" + group->Export() + "}";
    out += "!";
    return out;
}
