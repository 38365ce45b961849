#include "docmgr/tools/wildcard.h"

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
    const std::u32string decodedText = Decode(text);
    size_t start = 0;
    for (;;) {
        const size_t end = patterns.find(separator, start);
        const std::string_view one = patterns.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start);
        if (MatchDecoded(Decode(one), decodedText))
            return true;
        if (end == std::string_view::npos)
            return false;
        start = end + 1;
    }
}

bool MatchListNoCase(std::string_view patterns, std::string_view text, char separator)
{
    return MatchList(textcase::ToUpper(patterns), textcase::ToUpper(text), separator);
}

}  // namespace wildcard
