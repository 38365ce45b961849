#include "docmgr/tools/wildcard.h"

#include <algorithm>
#include <string>

#include "docmgr/tools/textcase.h"

namespace wildcard {
namespace {

// Decodes UTF-8 into code points; a byte that starts no valid sequence stands for itself
// (offset into a private range) so that any text can be matched.
std::u32string Decode(std::string_view text)
{
    std::u32string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size();) {
        const unsigned char lead = static_cast<unsigned char>(text[i]);
        size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
        char32_t cp = length == 1 ? lead : length == 2 ? lead & 0x1F : length == 3 ? lead & 0x0F : lead & 0x07;
        bool valid = length != 0 && i + length <= text.size();
        for (size_t k = 1; valid && k < length; ++k) {
            const unsigned char next = static_cast<unsigned char>(text[i + k]);
            valid = (next >> 6) == 0x2;
            cp = (cp << 6) | (next & 0x3F);
        }
        if (!valid) {
            out.push_back(char32_t(0xF0000 + lead));
            ++i;
        } else {
            out.push_back(cp);
            i += length;
        }
    }
    return out;
}

// Iterative match with one backtrack point per star: linear in practice, never recursive.
bool MatchDecoded(const std::u32string& pattern, const std::u32string& text)
{
    size_t p = 0, t = 0;
    size_t starP = std::u32string::npos, starT = 0;
    while (t < text.size()) {
        if (p < pattern.size() && (pattern[p] == U'?' || (pattern[p] != U'*' && pattern[p] == text[t]))) {
            ++p;
            ++t;
        } else if (p < pattern.size() && pattern[p] == U'*') {
            starP = p++;
            starT = t;
        } else if (starP != std::u32string::npos) {
            p = starP + 1;
            t = ++starT;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == U'*')
        ++p;
    return p == pattern.size();
}

}  // namespace

bool Match(std::string_view pattern, std::string_view text)
{
    return MatchDecoded(Decode(pattern), Decode(text));
}

bool MatchList(std::string_view patterns, std::string_view text, char separator)
{
    return PatternList(patterns, separator, false).Matches(text);
}

bool MatchListNoCase(std::string_view patterns, std::string_view text, char separator)
{
    return PatternList(patterns, separator, true).Matches(text);
}

PatternList::PatternList(std::string_view patterns, char separator, bool ignoreCase) : ignoreCase_(ignoreCase)
{
    const std::string cased = ignoreCase ? textcase::ToUpper(patterns) : std::string(patterns);
    const std::string_view all = cased;
    for (size_t start = 0;;) {
        const size_t end = all.find(separator, start);
        patterns_.push_back(Decode(all.substr(start, end == std::string_view::npos ? end : end - start)));
        if (end == std::string_view::npos)
            break;
        start = end + 1;
    }
}

bool PatternList::Matches(std::string_view text) const
{
    std::u32string decoded;
    const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    if (ascii && ignoreCase_) {
        // Most names are ASCII: upper-case them on the way instead of through Unicode tables.
        decoded.reserve(text.size());
        for (char c : text)
            decoded.push_back(char32_t(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c));
    } else {
        decoded = Decode(ignoreCase_ ? std::string_view(textcase::ToUpper(text)) : text);
    }
    return std::any_of(patterns_.begin(), patterns_.end(), [&](const std::u32string& pattern) {
        // "*.odt" and its like, most of a list of file patterns: a comparison of the end.
        if (pattern.size() > 1 && pattern[0] == U'*' && pattern.find_first_of(U"*?", 1) == std::u32string::npos)
            return decoded.size() >= pattern.size() - 1 &&
                   decoded.compare(decoded.size() - (pattern.size() - 1), pattern.size() - 1, pattern, 1) == 0;
        return MatchDecoded(pattern, decoded);
    });
}

}  // namespace wildcard
