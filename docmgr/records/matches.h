#pragma once
// Whether a document passes the working group's filter.
#include <cstdint>
#include <optional>

#include "docmgr/records/docinfo.h"

class ImplDocConfig;
class DocGroupConfig;

// What a condition row tests, by the code the configuration stores ("FILLTERCONDITION"):
// the document's value on the left, the row's value on the right.
enum class FilterCondition : int32_t {
    Equal = 0,
    AtLeast = 1,
    AtMost = 2,
    Greater = 3,
    Less = 4,
    NotEqual = 5,
    Wildcard = 6,  // the document's value as text against the row's value as a pattern
};
constexpr int32_t FILTER_CONDITION_COUNT = 7;

// The condition of a stored code; none for a code outside 0..6, which tests nothing.
constexpr std::optional<FilterCondition> ConditionOf(int32_t code)
{
    if (code < 0 || code >= FILTER_CONDITION_COUNT)
        return std::nullopt;
    return FilterCondition(code);
}

// How a condition row joins the next one ("FILTERLINK"); a stored code other than 0 and 1
// means Or.
enum class FilterLink : int32_t { End = 0, And = 1, Or = 2 };

constexpr FilterLink LinkOf(int32_t code)
{
    return code == 0 ? FilterLink::End : code == 1 ? FilterLink::And : FilterLink::Or;
}

bool Matches(const DocInfo& info, const ImplDocConfig& config);
// The filter is in force: a text filter is set or the first condition row is used.
bool FilterInForce(const DocGroupConfig& group);
