#pragma once
// Whole-text wildcard matching on code points: "*" any run, "?" one character.
#include <string>
#include <string_view>
#include <vector>

namespace wildcard {
// True when `pattern` matches all of `text`.
bool Match(std::string_view pattern, std::string_view text);
// `patterns` split at `separator` into alternatives; true when any matches.
bool MatchList(std::string_view patterns, std::string_view text, char separator);
// As MatchList, both sides compared without regard to letter case.
bool MatchListNoCase(std::string_view patterns, std::string_view text, char separator);

// A pattern list decoded once, for matching many texts (the names of a directory).
class PatternList {
public:
    PatternList(std::string_view patterns, char separator, bool ignoreCase);
    // True when any alternative matches all of `text`.
    bool Matches(std::string_view text) const;

private:
    std::vector<std::u32string> patterns_;
    bool ignoreCase_;
};
}  // namespace wildcard
