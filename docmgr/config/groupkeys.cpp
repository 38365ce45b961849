// The table of a group's keys and the texts of their values.
#include "docmgr/config/groupkeys.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "docmgr/config/configkeys.h"
#include "docmgr/tools/tokens.h"

namespace groupkeys {
namespace {

using G = DocGroupConfig;

// A field holds one element, or an array of them.
template <class T>
struct Elements {
    using Type = T;
    static constexpr bool array = false;
    static constexpr unsigned count = 1;
};
template <class T, size_t N>
struct Elements<std::array<T, N>> {
    using Type = T;
    static constexpr bool array = true;
    static constexpr unsigned count = unsigned(N);
};

template <auto member>
using FieldOf = std::remove_cvref_t<decltype(std::declval<G&>().*member)>;
template <auto member>
using ElementOf = typename Elements<FieldOf<member>>::Type;

template <auto member>
auto& ElementAt(auto& group, unsigned element)
{
    auto& field = group.*member;
    if constexpr (Elements<FieldOf<member>>::array)
        return field[element];
    else
        return field;
}

// Texts and flags are values as they are; every number widens to long long.
template <auto member>
Value Get(const G& group, unsigned element)
{
    using E = ElementOf<member>;
    if constexpr (std::is_same_v<E, std::string> || std::is_same_v<E, bool>)
        return ElementAt<member>(group, element);
    else
        return static_cast<long long>(ElementAt<member>(group, element));
}

// A number is cut to the width of its field.
template <auto member>
void Set(G& group, unsigned element, const Value& value)
{
    using E = ElementOf<member>;
    if constexpr (std::is_same_v<E, std::string> || std::is_same_v<E, bool>)
        ElementAt<member>(group, element) = std::get<E>(value);
    else
        ElementAt<member>(group, element) = static_cast<E>(std::get<long long>(value));
}

// A kind that does not suit its field stops the build.
template <auto member>
consteval GroupKey Key(const char* name, Kind kind, Layout layout)
{
    using E = ElementOf<member>;
    bool suits = false;
    if constexpr (std::is_same_v<E, std::string>)
        suits = kind == Kind::Text;
    else if constexpr (std::is_same_v<E, bool>)
        suits = kind == Kind::Flag || kind == Kind::Order;
    else if constexpr (std::is_signed_v<E>)
        suits = kind == Kind::Signed;
    else
        suits = kind == Kind::Number || kind == Kind::ColumnId;
    if (!suits)
        throw "the kind does not suit the field";
    return {name, Elements<FieldOf<member>>::count, kind, layout, &Get<member>, &Set<member>};
}

// clang-format off
constexpr GroupKey kKeys[] = {
    Key<&G::groupName>      ("GROUPNAME",        Kind::Text,     Layout::Item),
    Key<&G::section>        ("SECTION",          Kind::Text,     Layout::Item),
    Key<&G::filterTitle>    ("FILTERTITLE",      Kind::Text,     Layout::Bracketed),
    Key<&G::filterTopic>    ("FILTERTOPIC",      Kind::Text,     Layout::Bracketed),
    Key<&G::filterAuthor>   ("FILTERAUTHOR",     Kind::Text,     Layout::Bracketed),
    Key<&G::filterKeywords> ("FILTERKEYWORDS",   Kind::Text,     Layout::Bracketed),
    Key<&G::filterFiles>    ("FILTERFILES",      Kind::Text,     Layout::Bracketed),
    Key<&G::filterSensitive>("FILTERSENSITIVE",  Kind::Flag,     Layout::Bracketed),
    Key<&G::filterField>    ("FILTERFIELD",      Kind::Number,   Layout::Row),
    // The double L is the key existing files carry; it must stay.
    Key<&G::filterCondition>("FILLTERCONDITION", Kind::Signed,   Layout::Row),
    Key<&G::filterValue>    ("FILTERVALUE",      Kind::Text,     Layout::Row),
    Key<&G::filterDate>     ("FILTERDATE",       Kind::Number,   Layout::Row),
    Key<&G::filterTime>     ("FILTERTIME",       Kind::Number,   Layout::Row),
    Key<&G::filterLink>     ("FILTERLINK",       Kind::Signed,   Layout::Row),
    Key<&G::sortColumnId>   ("SORTCOLUMNID",     Kind::Number,   Layout::Item),
    Key<&G::sortAscending>  ("SORTORDER",        Kind::Order,    Layout::Item),
    Key<&G::columnId>       ("COLUMNID",         Kind::ColumnId, Layout::Slot),
    Key<&G::columnWidth>    ("COLUMNWIDTH",      Kind::Number,   Layout::Slot),
    Key<&G::frozenColumns>  ("FROZENCOLUMNS",    Kind::Number,   Layout::Item),
    Key<&G::infoLabel>      ("INFO",             Kind::Text,     Layout::List),
    Key<&G::paths>          ("PATHS",            Kind::Text,     Layout::Bracketed),
    Key<&G::guis>           ("GUIS",             Kind::Text,     Layout::Bracketed),
};
// clang-format on

}  // namespace

std::span<const GroupKey> Keys()
{
    return kKeys;
}

const GroupKey& KeyNamed(std::string_view name)
{
    const auto found =
        std::find_if(std::begin(kKeys), std::end(kKeys), [&](const GroupKey& key) { return key.name == name; });
    if (found == std::end(kKeys))
        throw std::logic_error("no group key " + std::string(name));
    return *found;
}

std::span<const GroupKey> RunAt(size_t first)
{
    const std::span<const GroupKey> keys = Keys();
    const Layout layout = keys[first].layout;
    size_t end = first + 1;
    if (layout == Layout::Row || layout == Layout::Slot) {
        while (end < keys.size() && keys[end].layout == layout)
            ++end;
    }
    return keys.subspan(first, end - first);
}

unsigned ElementCount(std::span<const GroupKey> run)
{
    unsigned count = 0;
    for (const GroupKey& key : run)
        count = std::max(count, key.count);
    return count;
}

std::string KeyName(const GroupKey& key, unsigned element)
{
    return key.count > 1 ? configkeys::Numbered(key.name, element) : key.name;
}

void ForEachValue(const std::function<void(const GroupKey& key, unsigned element)>& visit)
{
    const std::span<const GroupKey> keys = Keys();
    for (size_t first = 0; first < keys.size();) {
        const std::span<const GroupKey> run = keys[first].layout == Layout::Row ? RunAt(first) : keys.subspan(first, 1);
        for (unsigned element = 0; element < ElementCount(run); ++element) {
            for (const GroupKey& key : run) {
                if (element < key.count)
                    visit(key, element);
            }
        }
        first += run.size();
    }
}

std::string FileText(Kind kind, const Value& value)
{
    using namespace configkeys;
    switch (kind) {
    case Kind::Text: return std::get<std::string>(value);
    case Kind::Flag: return std::get<bool>(value) ? True : False;
    case Kind::Order: return std::get<bool>(value) ? Up : Down;
    case Kind::Number:
    case Kind::Signed:
    case Kind::ColumnId: break;
    }
    return std::to_string(std::get<long long>(value));
}

// Flags and orders are case-sensitive: "true" and "up" read as false.
Value FromFileText(Kind kind, const std::string& text)
{
    using namespace configkeys;
    switch (kind) {
    case Kind::Text: return text;
    case Kind::Flag: return text == True;
    case Kind::Order: return text == Up;
    case Kind::Signed: return tokens::ToSigned(text);
    case Kind::Number:
    case Kind::ColumnId: break;
    }
    return static_cast<long long>(tokens::ToNumber(text));
}

}  // namespace groupkeys
