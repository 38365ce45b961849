// The one-line text image of the configuration handed to the host. It is produced only,
// never parsed, so nothing in it is escaped.
#include <string>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/config/groupkeys.h"
#include "docmgr/config/impldocconfig.h"

namespace {
using groupkeys::GroupKey;
using groupkeys::Kind;
using groupkeys::Layout;

const char* Flag(bool value)
{
    return value ? "T" : "F";
}

std::string Bracketed(const std::string& text)
{
    return "[" + text + "]";
}

std::string ExportText(const GroupKey& key, const DocGroupConfig& group, unsigned element)
{
    const groupkeys::Value value = key.get(group, element);
    switch (key.kind) {
    case Kind::Text: return std::get<std::string>(value);
    case Kind::Flag:
    case Kind::Order: return Flag(std::get<bool>(value));
    case Kind::ColumnId:
        // A column id travels as one letter: ids 1..20 give "B".."U".
        return std::string(1, char(uint8_t((std::get<long long>(value) & 0xFF) + 65)));
    case Kind::Number:
    case Kind::Signed: break;
    }
    return std::to_string(std::get<long long>(value));
}

// Element `element` of every key of `run` that has one, each followed by `separator`.
std::string Parts(std::span<const GroupKey> run, const DocGroupConfig& group, unsigned element, const char* separator)
{
    std::string out;
    for (const GroupKey& key : run) {
        if (element < key.count)
            out += ExportText(key, group, element) + separator;
    }
    return out;
}

// A key, or a run of filter row or column slot keys, as its layout puts it.
std::string ExportRun(std::span<const GroupKey> run, const DocGroupConfig& group)
{
    const Layout layout = run.front().layout;
    if (layout == Layout::Bracketed)
        return Bracketed(ExportText(run.front(), group, 0));
    std::string out;
    for (unsigned element = 0; element < groupkeys::ElementCount(run); ++element) {
        if (layout == Layout::Row)
            out += Bracketed(Parts(run, group, element, ";"));
        else if (layout == Layout::Slot)
            out += Parts(run, group, element, "") + ";";  // the id's letter glued to the width
        else
            out += Parts(run, group, element, ";");
    }
    if (layout == Layout::Row)
        return "(" + out + ")";
    return layout == Layout::Item ? out : Bracketed(out);
}
}  // namespace

std::string DocGroupConfig::Export() const
{
    std::string out;
    for (size_t first = 0; first < groupkeys::Keys().size();) {
        const std::span<const GroupKey> run = groupkeys::RunAt(first);
        out += ExportRun(run, *this);
        first += run.size();
    }
    return out;
}

std::string ImplDocConfig::Export() const
{
    std::string out = "@DocManager[2.1]";
    out += Bracketed(Flag(singleView));
    out += Bracketed(std::to_string(actualGroup));
    out += Bracketed(std::to_string(groups_.size()));
    // Opened by a bracket, closed by a brace: the format hosts already read.
    for (const auto& group : groups_)
        out += "[" + group->Export() + "}";
    out += "!";
    return out;
}
