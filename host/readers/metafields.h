#pragma once
// The editable fields in the shape the format writers store them.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/readers/docwriter.h"

// Named information fields, in the order they are to be read back.
using InfoFields = std::vector<std::pair<std::string, std::string>>;

// The fields WriteDocMeta stores: all four, named, unless every value is empty and the
// document has no user-defined fields of its own (then nothing is added).
InfoFields InfoFieldsOf(const DocMeta& meta, bool documentHasFields);
// The items of a ", "-separated keyword list, trimmed, empty items dropped.
std::vector<std::string> SplitKeywords(std::string_view keywords);
