#pragma once
// Text for output that promises UTF-8: file names and index records may hold any bytes.
#include <string>
#include <string_view>

// Appends `text` with every invalid UTF-8 sequence replaced by U+FFFD and every NUL byte
// dropped.
void AppendValidUtf8(std::string& out, std::string_view text);
std::string ValidUtf8(std::string_view text);
