// Writing the configuration back: the group list, the group sections and "GENERAL".
// Each public save ends with a flush, so the file on disk is always current.
#include <string>

#include "docmgr/config/configkeys.h"
#include "docmgr/config/impldocconfig.h"
#include "docmgr/tools/config.h"

using namespace configkeys;

void ImplDocConfig::SaveConfig()
{
    if (!config_)
        return;
    // Nothing is deleted here: sections of groups that no longer exist go only by RemoveGroup.
    for (uint16_t g = 0; g < GroupCount(); ++g) {
        config_->SetGroup(Groups);
        config_->WriteKey(std::to_string(g), Group(g).groupName);
        WriteGroup(g);
    }
    config_->Flush();
}

void ImplDocConfig::WriteGroup(uint16_t group)
{
    const DocGroupConfig& grp = Group(group);
    Config& out = *config_;
    out.SetGroup(std::to_string(group));
    out.WriteKey(GroupName, grp.groupName);
    out.WriteKey(Section, grp.section);
    out.WriteKey(FilterTitle, grp.filterTitle);
    out.WriteKey(FilterTopic, grp.filterTopic);
    out.WriteKey(FilterAuthor, grp.filterAuthor);
    out.WriteKey(FilterKeywords, grp.filterKeywords);
    out.WriteKey(FilterFiles, grp.filterFiles);
    out.WriteKey(FilterSensitive, grp.filterSensitive ? True : False);

    for (unsigned i = 0; i < FILTER_ROWS; ++i) {
        out.WriteKey(Numbered(FilterField, i), std::to_string(grp.filterField[i]));
        out.WriteKey(Numbered(FilterCondition, i), std::to_string(grp.filterCondition[i]));
        out.WriteKey(Numbered(FilterValue, i), grp.filterValue[i]);
        out.WriteKey(Numbered(FilterDate, i), std::to_string(grp.filterDate[i]));
        // The saved time of a row is its date number; files in use depend on it.
        out.WriteKey(Numbered(FilterTime, i), std::to_string(grp.filterDate[i]));
        if (i < grp.filterLink.size())
            out.WriteKey(Numbered(FilterLink, i), std::to_string(grp.filterLink[i]));
    }

    out.WriteKey(SortColumnId, std::to_string(grp.sortColumnId));
    out.WriteKey(SortOrder, grp.sortAscending ? Up : Down);
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i)
        out.WriteKey(Numbered(ColumnId, i), std::to_string(grp.columnId[i]));

    WriteColumnWidths(group);

    out.WriteKey(FrozenColumns, std::to_string(grp.frozenColumns));
    for (unsigned i = 0; i < grp.infoLabel.size(); ++i)
        out.WriteKey(Numbered(Info, i), grp.infoLabel[i]);
    out.WriteKey(Paths, grp.paths);
    out.WriteKey(Guis, grp.guis);
}

void ImplDocConfig::WriteColumnWidths(uint16_t group)
{
    const DocGroupConfig& grp = Group(group);
    config_->SetGroup(std::to_string(group));
    for (unsigned i = 0; i < COLUMN_SLOTS; ++i)
        config_->WriteKey(Numbered(ColumnWidth, i), std::to_string(grp.columnWidth[i]));
}

// With no group in force the widths go to section "65535", which nothing reads.
void ImplDocConfig::SaveGroupColumnWidth(uint16_t group)
{
    if (!config_ || Element(group) >= groups_.size())
        return;
    WriteColumnWidths(group);
    config_->Flush();
}

void ImplDocConfig::SaveGeneralSection()
{
    if (!config_)
        return;
    config_->SetGroup(General);
    config_->WriteKey(ViewMode, singleView ? Single : Multi);
    config_->WriteKey(ActualGroup, std::to_string(actualGroup));
    config_->Flush();
}
