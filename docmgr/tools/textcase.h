#pragma once
// Unicode-aware case mapping of UTF-8 text.
#include <string>
#include <string_view>

namespace textcase {
std::string ToUpper(std::string_view utf8);
// Appends `utf8` with its case folded (Unicode simple folding: "ZOË" and "Zoë" both give
// "zoë"); ASCII text is folded without leaving UTF-8.
void AppendFolded(std::string& out, std::string_view utf8);
// Blanks (0x20) removed everywhere in the text.
std::string EraseBlanks(std::string_view text);
}  // namespace textcase
