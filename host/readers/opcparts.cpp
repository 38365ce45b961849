#include "host/readers/opcparts.h"

#include <string_view>

#include "host/readers/namespaces.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

bool EndsWith(std::string_view s, std::string_view end)
{
    return s.size() >= end.size() && s.substr(s.size() - end.size()) == end;
}

}  // namespace

std::string PartNameOfTarget(const std::string& target)
{
    std::string_view name = target;
    while (!name.empty() && name.front() == '/')
        name.remove_prefix(1);
    return std::string(name);
}

OpcPropertyParts LocatePropertyParts(const ZipArchive& zip)
{
    OpcPropertyParts parts;
    std::string bytes;
    pugi::xml_document rels;
    if (zip.Read(opc::rootRelsPart, kMaxXmlPart, bytes) != ZipRead::Ok || !xmlutil::Parse(bytes, rels))
        return parts;
    for (pugi::xml_node rel : rels.document_element().children()) {
        if (xmlutil::LocalName(rel) != "Relationship" ||
            std::string_view(rel.attribute("TargetMode").value()) == "External")
            continue;
        const std::string_view type = rel.attribute("Type").value();
        const std::string target = PartNameOfTarget(rel.attribute("Target").value());
        if (target.empty())
            continue;
        // Transitional and strict packages spell the types differently; the ends agree.
        if (!parts.coreListed && EndsWith(type, "/metadata/core-properties")) {
            parts.core = target;
            parts.coreListed = true;
        } else if (!parts.customListed &&
                   (EndsWith(type, "/custom-properties") || EndsWith(type, "/customProperties"))) {
            parts.custom = target;
            parts.customListed = true;
        }
    }
    return parts;
}
