#include "host/readers/xmlutil.h"

#include <sstream>

namespace xmlutil {

bool Parse(const std::string& bytes, pugi::xml_document& doc, bool forEditing)
{
    unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single;
    if (forEditing)
        options |= pugi::parse_declaration | pugi::parse_comments | pugi::parse_pi | pugi::parse_doctype;
    const pugi::xml_parse_result result = doc.load_buffer(bytes.data(), bytes.size(), options, pugi::encoding_auto);
    if (!result) {
        doc.reset();
        return false;
    }
    return bool(doc.document_element());
}

std::string Save(const pugi::xml_document& doc)
{
    std::ostringstream out;
    doc.save(out, "", pugi::format_raw, pugi::encoding_utf8);
    return out.str();
}

namespace {

std::string_view PrefixOf(std::string_view qualified)
{
    const size_t colon = qualified.find(':');
    return colon == std::string_view::npos ? std::string_view() : qualified.substr(0, colon);
}

}  // namespace

std::string_view LocalName(pugi::xml_node node)
{
    std::string_view name = node.name();
    const size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

std::string NamespaceOfPrefix(pugi::xml_node node, std::string_view prefix)
{
    const std::string attribute = prefix.empty() ? "xmlns" : "xmlns:" + std::string(prefix);
    for (pugi::xml_node n = node; n && n.type() == pugi::node_element; n = n.parent()) {
        if (pugi::xml_attribute a = n.attribute(attribute.c_str()))
            return a.value();
    }
    return {};
}

std::string NamespaceOf(pugi::xml_node node)
{
    return NamespaceOfPrefix(node, PrefixOf(node.name()));
}

std::string NamespaceOf(pugi::xml_attribute attribute, pugi::xml_node owner)
{
    // An attribute without prefix is in no namespace.
    const std::string_view prefix = PrefixOf(attribute.name());
    return prefix.empty() || prefix == "xmlns" ? std::string() : NamespaceOfPrefix(owner, prefix);
}

bool Is(pugi::xml_node node, const char* uri, const char* local)
{
    return node.type() == pugi::node_element && LocalName(node) == local && NamespaceOf(node) == uri;
}

pugi::xml_node Child(pugi::xml_node parent, const char* uri, const char* local)
{
    for (pugi::xml_node child : parent.children()) {
        if (Is(child, uri, local))
            return child;
    }
    return {};
}

std::string Text(pugi::xml_node node)
{
    // Iterative walk: a hostile document may nest deeply.
    std::string text;
    pugi::xml_node n = node.first_child();
    while (n && n != node) {
        if (n.type() == pugi::node_pcdata || n.type() == pugi::node_cdata)
            text += n.value();
        if (n.first_child()) {
            n = n.first_child();
            continue;
        }
        while (n != node && !n.next_sibling())
            n = n.parent();
        if (n != node)
            n = n.next_sibling();
    }
    return text;
}

void SetText(pugi::xml_node node, std::string_view text)
{
    while (node.first_child())
        node.remove_child(node.first_child());
    if (!text.empty())
        node.append_child(pugi::node_pcdata).set_value(std::string(text).c_str());
}

std::string DeclaredPrefix(pugi::xml_node root, const char* uri)
{
    for (pugi::xml_attribute a : root.attributes()) {
        const std::string_view name = a.name();
        if (name.substr(0, 6) == "xmlns:" && std::string_view(a.value()) == uri)
            return std::string(name.substr(6));
    }
    return {};
}

std::string PrefixFor(pugi::xml_node root, const char* uri, const char* preferred)
{
    if (std::string declared = DeclaredPrefix(root, uri); !declared.empty())
        return declared;
    std::string prefix = preferred;
    for (int n = 2; root.attribute(("xmlns:" + prefix).c_str()); ++n)
        prefix = preferred + std::to_string(n);
    root.append_attribute(("xmlns:" + prefix).c_str()).set_value(uri);
    return prefix;
}

pugi::xml_node AppendElement(pugi::xml_node parent, pugi::xml_node root, const char* uri, const char* preferredPrefix,
                             const char* local)
{
    const std::string prefix = PrefixFor(root, uri, preferredPrefix);
    return parent.append_child((prefix + ":" + local).c_str());
}

void SetSingleChild(pugi::xml_node parent, pugi::xml_node root, const char* uri, const char* preferredPrefix,
                    const char* local, std::string_view value)
{
    pugi::xml_node first = Child(parent, uri, local);
    if (value.empty()) {
        RemoveChildren(parent, uri, local);
        return;
    }
    if (!first)
        first = AppendElement(parent, root, uri, preferredPrefix, local);
    SetText(first, value);
    for (pugi::xml_node n = first.next_sibling(); n;) {
        const pugi::xml_node next = n.next_sibling();
        if (Is(n, uri, local))
            parent.remove_child(n);
        n = next;
    }
}

void RemoveChildren(pugi::xml_node parent, const char* uri, const char* local)
{
    for (pugi::xml_node n = parent.first_child(); n;) {
        const pugi::xml_node next = n.next_sibling();
        if (Is(n, uri, local))
            parent.remove_child(n);
        n = next;
    }
}

}  // namespace xmlutil
