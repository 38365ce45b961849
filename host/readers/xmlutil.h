#pragma once
// Namespace-aware helpers over pugixml, which itself only knows qualified names.
// Elements are matched by namespace URI and local name, never by prefix, because
// producers choose their own prefixes.
#include <string>
#include <string_view>

#include <pugixml.hpp>

namespace xmlutil {

// Parses a whole document; false on malformed XML. `forEditing` keeps the declaration,
// comments and processing instructions so a saved document differs only where edited.
bool Parse(const std::string& bytes, pugi::xml_document& doc, bool forEditing = false);
// Serialises without re-indenting, UTF-8.
std::string Save(const pugi::xml_document& doc);

std::string_view LocalName(pugi::xml_node node);
// Namespace URI of an element, from the xmlns declarations in force at it.
std::string NamespaceOf(pugi::xml_node node);
// Namespace URI of an attribute of `owner`; empty for an unprefixed attribute.
std::string NamespaceOf(pugi::xml_attribute attribute, pugi::xml_node owner);
// Namespace URI bound to `prefix` at `node`; empty if none.
std::string NamespaceOfPrefix(pugi::xml_node node, std::string_view prefix);
bool Is(pugi::xml_node node, const char* uri, const char* local);
// First child element with that namespace and local name; empty node if none.
pugi::xml_node Child(pugi::xml_node parent, const char* uri, const char* local);

// All character data inside the element, in document order.
std::string Text(pugi::xml_node node);
// Replaces the element's contents with one text node.
void SetText(pugi::xml_node node, std::string_view text);

// Prefix declared for `uri` on `root`; empty if none.
std::string DeclaredPrefix(pugi::xml_node root, const char* uri);
// Prefix bound to `uri` on `root`, declaring `preferred` (or a free variant) if none is.
std::string PrefixFor(pugi::xml_node root, const char* uri, const char* preferred);
// Appends an element in namespace `uri`, qualified with the root's prefix for it.
pugi::xml_node AppendElement(pugi::xml_node parent, pugi::xml_node root, const char* uri, const char* preferredPrefix,
                             const char* local);
// Makes `value` the text of the one child element of that kind: the first is kept and
// set, further ones removed, one appended if there is none. Empty `value` removes all.
void SetSingleChild(pugi::xml_node parent, pugi::xml_node root, const char* uri, const char* preferredPrefix,
                    const char* local, std::string_view value);
// Removes every child element of that kind.
void RemoveChildren(pugi::xml_node parent, const char* uri, const char* local);

}  // namespace xmlutil
