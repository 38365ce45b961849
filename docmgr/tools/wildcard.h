#pragma once
// Whole-text wildcard matching on code points: "*" any run, "?" one character.
#include <string_view>

namespace wildcard {
// True when `pattern` matches all of `text`.
bool Match(std::string_view pattern, std::string_view text);
// `patterns` split at `separator` into alternatives; true when any matches.
bool MatchList(std::string_view patterns, std::string_view text, char separator);
// As MatchList, both sides compared without regard to letter case.
bool MatchListNoCase(std::string_view patterns, std::string_view text, char separator);
}  // namespace wildcard
