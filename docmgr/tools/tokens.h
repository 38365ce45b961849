#pragma once
// Token helpers of the toolkit string: counting and picking separated items.
#include <string>
#include <string_view>
#include <vector>

namespace tokens {
// Number of tokens: separators + 1, and 0 for an empty text.
unsigned short Count(std::string_view text, char separator);
// Token `index` (0-based); empty text when there is no such token.
std::string Get(std::string_view text, unsigned short index, char separator);
std::vector<std::string> Split(std::string_view text, char separator);
// Leading decimal digits as a number; empty or non-numeric text gives 0 (then cut to T).
unsigned long long ToNumber(std::string_view text);
long long ToSigned(std::string_view text);
}  // namespace tokens
