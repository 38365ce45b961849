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

constexpr int COND_WILDCARD = 6;

// Condition codes 0..5 on the comparison of document value against comparison value.
bool Holds(int condition, std::strong_ordering c)
{
    switch (condition) {
    case 0: return c == 0;
    case 1: return c >= 0;
    case 2: return c <= 0;
    case 3: return c > 0;
    case 4: return c < 0;
    default: return c != 0;  // 5
    }
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
        return wildcard::MatchList(patterns, keywords, ';') ||
               wildcard::MatchList(patterns, keywords, ',');
    }

    // Result of row r, or `previous` for a condition code that sets none.
    bool Row(const DocInfo& info, size_t r, bool previous) const
    {
        const uint16_t field = group_.filterField[r];
        const int condition = group_.filterCondition[r];
        if (condition < 0 || condition > COND_WILDCARD)
            return previous;
        const std::string& value = group_.filterValue[r];
        const bool wild = condition == COND_WILDCARD;

        switch (KindOfColumn(field)) {
        case FieldKind::Name:
        case FieldKind::Text: {
            const std::string text =
                Cased(field == COL_NAME ? fsutil::FileName(info.entry) : TextField(info, field));
            const std::string other = Cased(value);
            if (wild)
                return wildcard::Match(other, text);
            return Holds(condition, text.compare(other) <=> 0);
        }
        case FieldKind::Size: {
            const auto number = static_cast<uint32_t>(tokens::ToNumber(value));
            if (wild)  // the value's wildcards are lost on the way: equality
                return wildcard::Match(std::to_string(number), std::to_string(info.size));
            return Holds(condition, info.size <=> number);
        }
        case FieldKind::Date: {
            const Date& date = DateField(info, field);
            if (wild)
                return wildcard::Match(value, intl::FormatDate(date));
            return Holds(condition, date.GetDate() <=> group_.filterDate[r]);
        }
        // Codes 0 and 20 and above compare the printed time.
        case FieldKind::Time:
        case FieldKind::Directory:
        case FieldKind::None: {
            const Time& time = TimeField(info, field);
            if (wild)
                return wildcard::Match(value, intl::FormatTime(time));
            return Holds(condition, time.GetTime() <=> static_cast<int32_t>(group_.filterTime[r]));
        }
        }
        return previous;
    }

    bool Conditions(const DocInfo& info) const
    {
        const size_t rows = group_.filterLink[0] == 0 ? 1 : group_.filterLink[1] == 0 ? 2 : 3;
        bool r[FILTER_ROWS] = {false, false, false};
        for (size_t i = 0; i < rows; ++i)
            r[i] = Row(info, i, i > 0 ? r[i - 1] : false);

        if (rows == 1)
            return r[0];
        if (rows == 2) {
            // Two rows take AND or OR from the sort settings, not from the link.
            const bool both = group_.sortColumnId == 1 && !group_.sortAscending;
            return both ? (r[0] && r[1]) : (r[0] || r[1]);
        }
        const bool and0 = group_.filterLink[0] == 1;
        const bool and1 = group_.filterLink[1] == 1;
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
    if (!test.SimpleFilter(group.filterTitle, info.title) ||
        !test.SimpleFilter(group.filterTopic, info.topic) ||
        !test.SimpleFilter(group.filterAuthor, info.author) || !test.KeywordFilter(info))
        return false;
    if (group.filterField[0] == NO_COLUMN)
        return true;
    return test.Conditions(info);
}

bool FilterInForce(const DocGroupConfig& group)
{
    return !group.filterTitle.empty() || !group.filterTopic.empty() ||
           !group.filterAuthor.empty() || !group.filterKeywords.empty() ||
           group.filterField[0] != NO_COLUMN;
}
