#include "docmgr/records/matches.h"

#include <compare>
#include <string>
#include <string_view>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/docfields.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/textcase.h"
#include "docmgr/tools/tokens.h"
#include "docmgr/tools/wildcard.h"

namespace {

// A comparing condition on the comparison of document value against comparison value.
bool Holds(FilterCondition condition, std::strong_ordering c)
{
    switch (condition) {
    case FilterCondition::Equal: return c == 0;
    case FilterCondition::AtLeast: return c >= 0;
    case FilterCondition::AtMost: return c <= 0;
    case FilterCondition::Greater: return c > 0;
    case FilterCondition::Less: return c < 0;
    case FilterCondition::NotEqual: return c != 0;
    case FilterCondition::Wildcard: break;  // matched, not compared
    }
    return false;
}

class FilterTest {
public:
    explicit FilterTest(const DocGroupConfig& group) : group_(group) {}

    // Both sides upper-cased unless case counts.
    std::string Cased(std::string_view text) const
    {
        return group_.filterSensitive ? std::string(text) : textcase::ToUpper(text);
    }

    bool SimpleFilter(const std::string& pattern, const std::string& text) const
    {
        return pattern.empty() || wildcard::Match(Cased(pattern), Cased(text));
    }

    bool KeywordFilter(const DocInfo& info) const
    {
        if (group_.filterKeywords.empty())
            return true;
        const std::string patterns = Cased(group_.filterKeywords);
        const std::string keywords = Cased(info.keywords);
        return wildcard::MatchList(patterns, keywords, ';') || wildcard::MatchList(patterns, keywords, ',');
    }

    // Result of row r, or `previous` for a condition code that sets none.
    bool Row(const DocInfo& info, size_t r, bool previous) const
    {
        const uint16_t field = group_.filterField[r];
        const std::optional<FilterCondition> condition = ConditionOf(group_.filterCondition[r]);
        if (!condition)
            return previous;
        const std::string& value = group_.filterValue[r];
        const bool wild = *condition == FilterCondition::Wildcard;

        switch (KindOfColumn(field)) {
        case FieldKind::Name:
        case FieldKind::Text: {
            const std::string text = Cased(field == COL_NAME ? fsutil::FileName(info.entry) : TextField(info, field));
            const std::string other = Cased(value);
            if (wild)
                return wildcard::Match(other, text);
            return Holds(*condition, text.compare(other) <=> 0);
        }
        case FieldKind::Size: {
            const auto number = static_cast<uint32_t>(tokens::ToNumber(value));
            if (wild)  // the value's wildcards are lost on the way: equality
                return wildcard::Match(std::to_string(number), std::to_string(info.size));
            return Holds(*condition, info.size <=> number);
        }
        case FieldKind::Date: {
            const Date& date = DateField(info, field);
            if (wild)
                return wildcard::Match(value, intl::FormatDate(date));
            return Holds(*condition, date.GetDate() <=> group_.filterDate[r]);
        }
        // Codes 0 and 20 and above compare the printed time.
        case FieldKind::Time:
        case FieldKind::Directory:
        case FieldKind::None: {
            const Time& time = TimeField(info, field);
            if (wild)
                return wildcard::Match(value, intl::FormatTime(time));
            return Holds(*condition, time.GetTime() <=> static_cast<int32_t>(group_.filterTime[r]));
        }
        }
        return previous;
    }

    bool Conditions(const DocInfo& info) const
    {
        const FilterLink link0 = LinkOf(group_.filterLink[0]);
        const FilterLink link1 = LinkOf(group_.filterLink[1]);
        const size_t rows = link0 == FilterLink::End ? 1 : link1 == FilterLink::End ? 2 : 3;
        bool r[FILTER_ROWS] = {false, false, false};
        for (size_t i = 0; i < rows; ++i)
            r[i] = Row(info, i, i > 0 ? r[i - 1] : false);

        if (rows == 1)
            return r[0];
        if (rows == 2) {
            // Two rows take AND or OR from the sort settings, not from the link.
            const bool both = group_.sortColumnId == COL_NAME && !group_.sortAscending;
            return both ? (r[0] && r[1]) : (r[0] || r[1]);
        }
        const bool and0 = link0 == FilterLink::And;
        const bool and1 = link1 == FilterLink::And;
        if (and0 && and1)
            return r[0] && r[1] && r[2];
        if (and0)
            return (r[0] && r[1]) || r[2];
        if (and1)
            return r[0] || (r[1] && r[2]);
        return r[0] || r[1] || r[2];
    }

private:
    const DocGroupConfig& group_;
};

}  // namespace

bool Matches(const DocInfo& info, const ImplDocConfig& config)
{
    const DocGroupConfig& group = config.WorkingGroup();
    const FilterTest test(group);
    if (!test.SimpleFilter(group.filterTitle, info.title) || !test.SimpleFilter(group.filterTopic, info.topic) ||
        !test.SimpleFilter(group.filterAuthor, info.author) || !test.KeywordFilter(info))
        return false;
    if (group.filterField[0] == NO_COLUMN)
        return true;
    return test.Conditions(info);
}

bool FilterInForce(const DocGroupConfig& group)
{
    return !group.filterTitle.empty() || !group.filterTopic.empty() || !group.filterAuthor.empty() ||
           !group.filterKeywords.empty() || group.filterField[0] != NO_COLUMN;
}
