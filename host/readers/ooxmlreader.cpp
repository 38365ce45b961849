// Document information of an OOXML package, from its core and custom property parts.
#include <string_view>

#include "host/readers/formatreaders.h"
#include "host/readers/metadates.h"
#include "host/readers/namespaces.h"
#include "host/readers/opcparts.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

// A part that is missing is no problem; one that is there but unreadable is.
bool LoadPart(const ZipArchive& zip, const std::string& name, pugi::xml_document& doc, ReadProblem& problem)
{
    if (name.empty())
        return false;
    std::string bytes;
    const ZipRead read = zip.Read(name, kMaxXmlPart, bytes);
    if (read == ZipRead::Ok && xmlutil::Parse(bytes, doc))
        return true;
    if (read == ZipRead::Encrypted)
        problem = ReadProblem::Encrypted;
    else if (read != ZipRead::Missing)
        problem = ReadProblem::Damaged;
    return false;
}

// Keywords are plain text, but may also come as one element per language.
std::string KeywordsText(pugi::xml_node node)
{
    std::string joined;
    bool anyElement = false;
    for (pugi::xml_node child : node.children()) {
        if (child.type() != pugi::node_element)
            continue;
        anyElement = true;
        const std::string item = xmlutil::Text(child);
        if (item.empty())
            continue;
        if (!joined.empty())
            joined += ", ";
        joined += item;
    }
    return anyElement ? joined : xmlutil::Text(node);
}

void ReadCore(pugi::xml_node root, DocInfo& info)
{
    auto text = [&](const char* uri, const char* local) { return xmlutil::Text(xmlutil::Child(root, uri, local)); };
    auto stamp = [&](const char* uri, const char* local, Date& date, Time& time) {
        if (pugi::xml_node node = xmlutil::Child(root, uri, local))
            metadates::ParseIso(xmlutil::Text(node), date, time);
    };
    info.title = text(ns::dc, "title");
    info.topic = text(ns::dc, "subject");
    info.author = text(ns::dc, "creator");
    info.modifiedBy = text(ns::cp, "lastModifiedBy");
    info.comment = text(ns::dc, "description");
    info.keywords = KeywordsText(xmlutil::Child(root, ns::cp, "keywords"));
    stamp(ns::dcterms, "created", info.createdDate, info.createdTime);
    stamp(ns::dcterms, "modified", info.modifiedDate, info.modifiedTime);
    stamp(ns::cp, "lastPrinted", info.printedDate, info.printedTime);
}

void ReadCustom(pugi::xml_node root, DocInfo& info)
{
    size_t count = 0;
    for (pugi::xml_node property : root.children()) {
        if (count == info.info.size())
            break;
        if (property.type() != pugi::node_element || xmlutil::LocalName(property) != "property")
            continue;
        // The value is the one typed child (vt:lpwstr, vt:i4, vt:filetime, ...).
        info.info[count++] =
            xmlutil::Text(property.find_child([](pugi::xml_node n) { return n.type() == pugi::node_element; }));
    }
}

}  // namespace

ReadProblem ReadOoxmlInfo(const ZipArchive& zip, DocInfo& info)
{
    const OpcPropertyParts parts = LocatePropertyParts(zip);
    ReadProblem problem = ReadProblem::None;
    pugi::xml_document core;
    if (LoadPart(zip, parts.core, core, problem))
        ReadCore(core.document_element(), info);
    pugi::xml_document custom;
    if (LoadPart(zip, parts.custom, custom, problem))
        ReadCustom(custom.document_element(), info);
    return problem;
}
