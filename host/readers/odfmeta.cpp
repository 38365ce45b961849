#include "host/readers/odfmeta.h"

#include "host/readers/namespaces.h"
#include "host/readers/xmlutil.h"

namespace odfmeta {

namespace {

const char* PrefixHint(const char* uri)
{
    return std::string_view(uri) == ns::dc ? "dc" : "meta";
}

// The meta:name attribute, whatever prefix the document binds to the meta namespace.
std::string FieldName(pugi::xml_node field, const std::string& metaPrefix)
{
    return field.attribute((metaPrefix + ":name").c_str()).value();
}

}  // namespace

void NewDocument(pugi::xml_document& doc)
{
    doc.reset();
    pugi::xml_node decl = doc.append_child(pugi::node_declaration);
    decl.append_attribute("version") = "1.0";
    decl.append_attribute("encoding") = "UTF-8";
    pugi::xml_node root = doc.append_child("office:document-meta");
    root.append_attribute("xmlns:office") = ns::office;
    root.append_attribute("xmlns:meta") = ns::meta;
    root.append_attribute("xmlns:dc") = ns::dc;
    root.append_attribute("xmlns:xlink") = "http://www.w3.org/1999/xlink";
    root.append_attribute("office:version") = "1.2";
    root.append_child("office:meta");
}

pugi::xml_node MetaElement(pugi::xml_document& doc)
{
    pugi::xml_node root = doc.document_element();
    const bool flat = xmlutil::Is(root, ns::office, "document");
    if (!flat && !xmlutil::Is(root, ns::office, "document-meta"))
        return {};
    if (pugi::xml_node meta = xmlutil::Child(root, ns::office, "meta"))
        return meta;
    if (!flat)
        return xmlutil::AppendElement(root, root, ns::office, "office", "meta");
    // In a flat document the information comes first, before styles and body.
    const std::string name = xmlutil::PrefixFor(root, ns::office, "office") + ":meta";
    const pugi::xml_node first = root.find_child([](pugi::xml_node n) { return n.type() == pugi::node_element; });
    return first ? root.insert_child_before(name.c_str(), first) : root.append_child(name.c_str());
}

void SetField(pugi::xml_document& doc, const char* uri, const char* local, std::string_view value)
{
    if (pugi::xml_node meta = MetaElement(doc))
        xmlutil::SetSingleChild(meta, doc.document_element(), uri, PrefixHint(uri), local, value);
}

void SetKeywords(pugi::xml_document& doc, const std::vector<std::string>& keywords)
{
    pugi::xml_node meta = MetaElement(doc);
    if (!meta)
        return;
    xmlutil::RemoveChildren(meta, ns::meta, "keyword");
    for (const std::string& keyword : keywords)
        xmlutil::SetText(xmlutil::AppendElement(meta, doc.document_element(), ns::meta, "meta", "keyword"), keyword);
}

bool HasUserFields(pugi::xml_document& doc)
{
    return bool(xmlutil::Child(MetaElement(doc), ns::meta, "user-defined"));
}

void SetUserFields(pugi::xml_document& doc, const InfoFields& fields)
{
    pugi::xml_node meta = MetaElement(doc);
    if (!meta || fields.empty())
        return;
    const pugi::xml_node root = doc.document_element();
    const std::string prefix = xmlutil::PrefixFor(root, ns::meta, "meta");
    // Drop the fields about to be written, then put the new ones before the first that stays.
    pugi::xml_node firstKept;
    for (pugi::xml_node n = meta.first_child(); n;) {
        const pugi::xml_node next = n.next_sibling();
        if (xmlutil::Is(n, ns::meta, "user-defined")) {
            const std::string name = FieldName(n, prefix);
            bool replaced = false;
            for (const auto& field : fields)
                replaced = replaced || field.first == name;
            if (replaced)
                meta.remove_child(n);
            else if (!firstKept)
                firstKept = n;
        }
        n = next;
    }
    const std::string element = prefix + ":user-defined";
    for (const auto& [name, value] : fields) {
        pugi::xml_node field =
            firstKept ? meta.insert_child_before(element.c_str(), firstKept) : meta.append_child(element.c_str());
        field.append_attribute((prefix + ":name").c_str()) = name.c_str();
        field.append_attribute((prefix + ":value-type").c_str()) = "string";
        xmlutil::SetText(field, value);
    }
}

bool ManifestEncrypts(const pugi::xml_document& manifest, const std::string& path)
{
    const pugi::xml_node root = manifest.document_element();
    const std::string fullPath = xmlutil::DeclaredPrefix(root, ns::manifest) + ":full-path";
    for (pugi::xml_node entry : root.children()) {
        if (xmlutil::Is(entry, ns::manifest, "file-entry") && entry.attribute(fullPath.c_str()).value() == path)
            return bool(xmlutil::Child(entry, ns::manifest, "encryption-data"));
    }
    return false;
}

void ManifestAdd(pugi::xml_document& manifest, const std::string& path, const std::string& mediaType)
{
    pugi::xml_node root = manifest.document_element();
    if (!xmlutil::Is(root, ns::manifest, "manifest"))
        return;
    const std::string prefix = xmlutil::PrefixFor(root, ns::manifest, "manifest");
    const std::string fullPath = prefix + ":full-path";
    for (pugi::xml_node entry : root.children()) {
        if (xmlutil::Is(entry, ns::manifest, "file-entry") && entry.attribute(fullPath.c_str()).value() == path)
            return;
    }
    pugi::xml_node entry = root.append_child((prefix + ":file-entry").c_str());
    entry.append_attribute(fullPath.c_str()) = path.c_str();
    entry.append_attribute((prefix + ":media-type").c_str()) = mediaType.c_str();
}

}  // namespace odfmeta
