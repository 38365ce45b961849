// Construction of one group's settings, and a new group's look.
#include "docmgr/config/docgroupconfig.h"

#include "docmgr/tools/datetime.h"

DocGroupConfig::DocGroupConfig() : filterFiles("*")
{
    const uint32_t today = Date::Today().GetDate();
    const uint32_t now = uint32_t(Time::Now().GetTime());
    filterField = {NO_COLUMN, 1, 1};
    filterDate.fill(today);
    filterTime.fill(now);
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i) {
        columnId[i] = uint16_t(i + 1);
        columnWidth[i] = NO_COLUMN;
    }
    for (unsigned i = 0; i < infoLabel.size(); ++i)
        infoLabel[i] = "Info " + std::to_string(i);
}

// A new group takes the look of its template, never its identity, text filters or
// directories: those start empty.
DocGroupConfig DocGroupConfig::LookOf(const DocGroupConfig& pattern)
{
    DocGroupConfig look = pattern;
    look.groupName = look.section = {};
    look.filterTitle = look.filterTopic = look.filterAuthor = look.filterKeywords = {};
    look.filterValue = {};
    look.paths = look.guis = {};
    return look;
}
