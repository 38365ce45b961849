#pragma once
// Unicode-aware case mapping of UTF-8 text.
#include <string>
#include <string_view>

namespace textcase {
std::string ToUpper(std::string_view utf8);
// Blanks (0x20) removed everywhere in the text.
std::string EraseBlanks(std::string_view text);
}  // namespace textcase
