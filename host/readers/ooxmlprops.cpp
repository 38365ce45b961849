#include "host/readers/ooxmlprops.h"

#include "host/readers/namespaces.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace ooxmlprops {

namespace {

const char* PrefixHint(const char* uri)
{
    const std::string_view u = uri;
    return u == ns::dc ? "dc" : u == ns::dcterms ? "dcterms" : "cp";
}

void Declaration(pugi::xml_document& doc)
{
    pugi::xml_node decl = doc.append_child(pugi::node_declaration);
    decl.append_attribute("version") = "1.0";
    decl.append_attribute("encoding") = "UTF-8";
    decl.append_attribute("standalone") = "yes";
}

bool LoadPart(ZipArchive& zip, const char* name, pugi::xml_document& doc)
{
    std::string bytes;
    return zip.Read(name, kMaxXmlPart, bytes) == ZipRead::Ok && xmlutil::Parse(bytes, doc, true);
}

}  // namespace

void NewCore(pugi::xml_document& doc)
{
    doc.reset();
    Declaration(doc);
    pugi::xml_node root = doc.append_child("cp:coreProperties");
    root.append_attribute("xmlns:cp") = ns::cp;
    root.append_attribute("xmlns:dc") = ns::dc;
    root.append_attribute("xmlns:dcterms") = ns::dcterms;
    root.append_attribute("xmlns:dcmitype") = ns::dcmitype;
    root.append_attribute("xmlns:xsi") = ns::xsi;
}

void NewCustom(pugi::xml_document& doc)
{
    doc.reset();
    Declaration(doc);
    pugi::xml_node root = doc.append_child("Properties");
    root.append_attribute("xmlns") = ns::custom;
    root.append_attribute("xmlns:vt") = ns::vt;
}

void SetCore(pugi::xml_document& doc, const char* uri, const char* local, std::string_view value)
{
    pugi::xml_node root = doc.document_element();
    xmlutil::SetSingleChild(root, root, uri, PrefixHint(uri), local, value);
}

void SetCoreStamp(pugi::xml_document& doc, const char* local, const std::string& isoUtc)
{
    SetCore(doc, ns::dcterms, local, isoUtc);
    pugi::xml_node root = doc.document_element();
    if (pugi::xml_node node = xmlutil::Child(root, ns::dcterms, local)) {
        const std::string xsi = xmlutil::PrefixFor(root, ns::xsi, "xsi");
        const std::string dcterms = xmlutil::PrefixFor(root, ns::dcterms, "dcterms");
        const std::string type = xsi + ":type";
        if (!node.attribute(type.c_str()))
            node.append_attribute(type.c_str());
        node.attribute(type.c_str()) = (dcterms + ":W3CDTF").c_str();
    }
}

bool HasCustom(const pugi::xml_document& doc)
{
    for (pugi::xml_node n : doc.document_element().children()) {
        if (xmlutil::LocalName(n) == "property")
            return true;
    }
    return false;
}

void SetCustom(pugi::xml_document& doc, const InfoFields& fields)
{
    pugi::xml_node root = doc.document_element();
    if (!root || fields.empty())
        return;
    // Properties are unprefixed in the custom namespace, their values in vt.
    const std::string ownPrefix = xmlutil::DeclaredPrefix(root, ns::custom);
    const std::string property = ownPrefix.empty() ? "property" : ownPrefix + ":property";
    const std::string value = xmlutil::PrefixFor(root, ns::vt, "vt") + ":lpwstr";
    pugi::xml_node firstKept;
    for (pugi::xml_node n = root.first_child(); n;) {
        const pugi::xml_node next = n.next_sibling();
        if (xmlutil::LocalName(n) == "property") {
            const std::string name = n.attribute("name").value();
            bool replaced = false;
            for (const auto& field : fields)
                replaced = replaced || field.first == name;
            if (replaced)
                root.remove_child(n);
            else if (!firstKept)
                firstKept = n;
        }
        n = next;
    }
    for (const auto& [name, text] : fields) {
        pugi::xml_node p =
            firstKept ? root.insert_child_before(property.c_str(), firstKept) : root.append_child(property.c_str());
        p.append_attribute("fmtid") = opc::customFmtId;
        p.append_attribute("pid") = "0";
        p.append_attribute("name") = name.c_str();
        xmlutil::SetText(p.append_child(value.c_str()), text);
    }
    int pid = 2;
    for (pugi::xml_node n : root.children()) {
        if (xmlutil::LocalName(n) != "property")
            continue;
        if (!n.attribute("pid"))
            n.append_attribute("pid");
        n.attribute("pid") = pid++;
    }
}

bool RegisterPart(ZipArchive& zip, const std::string& part, const char* contentType, const char* relType)
{
    pugi::xml_document types;
    pugi::xml_document rels;
    if (!LoadPart(zip, opc::contentTypesPart, types) || !LoadPart(zip, opc::rootRelsPart, rels))
        return false;

    pugi::xml_node typesRoot = types.document_element();
    const std::string partName = "/" + part;
    bool typed = false;
    for (pugi::xml_node n : typesRoot.children())
        typed = typed || (xmlutil::LocalName(n) == "Override" && partName == n.attribute("PartName").value());
    if (!typed) {
        const std::string prefix = xmlutil::DeclaredPrefix(typesRoot, ns::contentTypes);
        pugi::xml_node o = typesRoot.append_child(prefix.empty() ? "Override" : (prefix + ":Override").c_str());
        o.append_attribute("PartName") = partName.c_str();
        o.append_attribute("ContentType") = contentType;
        if (!zip.Put(opc::contentTypesPart, xmlutil::Save(types)))
            return false;
    }

    pugi::xml_node relsRoot = rels.document_element();
    bool related = false;
    std::string freeId;
    for (int n = 1; freeId.empty(); ++n) {
        const std::string id = "rId" + std::to_string(n);
        bool used = false;
        for (pugi::xml_node r : relsRoot.children())
            used = used || id == r.attribute("Id").value();
        if (!used)
            freeId = id;
    }
    for (pugi::xml_node r : relsRoot.children())
        related = related || std::string_view(relType) == r.attribute("Type").value();
    if (!related) {
        const std::string prefix = xmlutil::DeclaredPrefix(relsRoot, ns::relationships);
        pugi::xml_node r = relsRoot.append_child(prefix.empty() ? "Relationship" : (prefix + ":Relationship").c_str());
        r.append_attribute("Id") = freeId.c_str();
        r.append_attribute("Type") = relType;
        r.append_attribute("Target") = part.c_str();
        if (!zip.Put(opc::rootRelsPart, xmlutil::Save(rels)))
            return false;
    }
    return true;
}

}  // namespace ooxmlprops
