// Reading one group from its section of the configuration file.
#include <string>

#include "docmgr/config/configkeys.h"
#include "docmgr/config/docgroupconfig.h"
#include "docmgr/tools/config.h"
#include "docmgr/tools/tokens.h"

namespace {
// Reads keys of one section with an empty default; without a file every key is missing.
class SectionReader {
public:
    SectionReader(Config* config, uint16_t group) : config_(config)
    {
        if (config_)
            config_->SetGroup(std::to_string(group));
    }

    std::string Text(const std::string& key) const
    {
        return config_ ? config_->ReadKey(key, std::string()) : std::string();
    }
    uint16_t U16(const std::string& key) const { return uint16_t(tokens::ToNumber(Text(key))); }
    uint32_t U32(const std::string& key) const { return uint32_t(tokens::ToNumber(Text(key))); }
    int32_t I32(const std::string& key) const { return int32_t(tokens::ToSigned(Text(key))); }

private:
    Config* config_;
};
}  // namespace

// Every key defaults to empty text, so a missing key gives "", 0 or false rather than
// the default constructor's values; only a filter row's field code is raised to 1.
DocGroupConfig::DocGroupConfig(Config* config, uint16_t group)
{
    using namespace configkeys;
    const SectionReader in(config, group);

    groupName = in.Text(GroupName);
    section = in.Text(Section);
    filterTitle = in.Text(FilterTitle);
    filterTopic = in.Text(FilterTopic);
    filterAuthor = in.Text(FilterAuthor);
    filterKeywords = in.Text(FilterKeywords);
    filterFiles = in.Text(FilterFiles);
    filterSensitive = in.Text(FilterSensitive) == True;

    for (unsigned i = 0; i < FILTER_ROWS; ++i) {
        filterField[i] = in.U16(Numbered(FilterField, i));
        filterCondition[i] = in.I32(Numbered(FilterCondition, i));
        filterValue[i] = in.Text(Numbered(FilterValue, i));
        filterDate[i] = in.U32(Numbered(FilterDate, i));
        filterTime[i] = in.U32(Numbered(FilterTime, i));
        if (filterField[i] < 1)
            filterField[i] = 1;
        if (i < filterLink.size())
            filterLink[i] = in.I32(Numbered(FilterLink, i));
    }

    sortColumnId = in.U16(SortColumnId);
    sortAscending = in.Text(SortOrder) == Up;

    for (unsigned i = 0; i < COLUMN_SLOTS; ++i) {
        columnId[i] = in.U16(Numbered(ColumnId, i));
        columnWidth[i] = in.U16(Numbered(ColumnWidth, i));
    }

    frozenColumns = in.U16(FrozenColumns);
    for (unsigned i = 0; i < infoLabel.size(); ++i)
        infoLabel[i] = in.Text(Numbered(Info, i));
    paths = in.Text(Paths);
    guis = in.Text(Guis);
}
