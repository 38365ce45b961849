#pragma once
// The keys of a group's section in one table. Reading a group, saving it and its export
// line all walk this table, so a new key is one line in groupkeys.cpp.
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "docmgr/config/docgroupconfig.h"

namespace groupkeys {

// How a value is written as text.
enum class Kind {
    Text,      // as it stands
    Number,    // unsigned decimal
    Signed,    // signed decimal
    Flag,      // "TRUE" or "FALSE"; the export has "T" or "F"
    Order,     // "UP" (ascending) or "DOWN"; the export has "T" or "F"
    ColumnId,  // unsigned decimal; the export has one letter
};

// Where a key stands in the export line.
enum class Layout {
    Item,       // "value;"
    Bracketed,  // "[value]"
    List,       // "[value0;value1;...;]"
    Row,        // a part of the filter rows: "([part;part;...;][...][...])". These keys
                // are read and saved row by row as well.
    Slot,       // a part of the column slots: "[partpart;partpart;...;]"
};

// One value of a group: a text, a flag or a number.
using Value = std::variant<std::string, bool, long long>;

struct GroupKey {
    const char* name;  // with more than one element: NAME0, NAME1, ...
    unsigned count;    // elements of the field
    Kind kind;
    Layout layout;
    Value (*get)(const DocGroupConfig& group, unsigned element);
    void (*set)(DocGroupConfig& group, unsigned element, const Value& value);
};

// Every key, in the order a save writes them.
std::span<const GroupKey> Keys();
// The key of that name; it must be in the table.
const GroupKey& KeyNamed(std::string_view name);
// The name of element `element` of `key` in the file.
std::string KeyName(const GroupKey& key, unsigned element);

// The keys from `first` on that share its layout when that is Row or Slot; `first` alone
// otherwise.
std::span<const GroupKey> RunAt(size_t first);
// The most elements a key of `run` has: its number of rows or slots.
unsigned ElementCount(std::span<const GroupKey> run);
// Calls visit(key, element) for every value of a group in file order: key after key,
// the filter rows row by row.
void ForEachValue(const std::function<void(const GroupKey& key, unsigned element)>& visit);

// A value as the file holds it, and back; a missing key reads as empty text.
std::string FileText(Kind kind, const Value& value);
Value FromFileText(Kind kind, const std::string& text);

}  // namespace groupkeys
