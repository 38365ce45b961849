// Document information of an ODF package, from meta.xml.
#include <string_view>
#include <vector>

#include "host/readers/formatreaders.h"
#include "host/readers/metadates.h"
#include "host/readers/odffields.h"
#include "host/readers/namespaces.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

// Sets `field` from the first element of its kind only.
void TakeFirst(std::string& field, bool& seen, pugi::xml_node node)
{
    if (seen)
        return;
    seen = true;
    field = xmlutil::Text(node);
}

void TakeStamp(Date& date, Time& time, pugi::xml_node node)
{
    if (date.GetDate() == 0)
        metadates::ParseIso(xmlutil::Text(node), date, time);
}

std::string Join(const std::vector<std::string>& items)
{
    std::string joined;
    for (const std::string& item : items) {
        if (!joined.empty())
            joined += ", ";
        joined += item;
    }
    return joined;
}

}  // namespace

ReadProblem ReadOdfInfo(const ZipArchive& zip, DocInfo& info)
{
    std::string bytes;
    pugi::xml_document doc;
    switch (zip.Read("meta.xml", kMaxXmlPart, bytes)) {
    case ZipRead::Ok: break;
    case ZipRead::Missing: return ReadProblem::None;
    case ZipRead::Encrypted: return ReadProblem::Encrypted;
    case ZipRead::TooLarge:
    case ZipRead::Damaged: return ReadProblem::Damaged;
    }
    if (!xmlutil::Parse(bytes, doc))
        return ReadProblem::Damaged;
    ReadOdfMetaFields(xmlutil::Child(doc.document_element(), ns::office, "meta"), info);
    return ReadProblem::None;
}

void ReadOdfMetaFields(pugi::xml_node meta, DocInfo& info)
{
    bool title = false, topic = false, author = false, modifiedBy = false, printedBy = false, comment = false;
    std::vector<std::string> keywords;
    size_t infoCount = 0;
    for (pugi::xml_node node : meta.children()) {
        if (node.type() != pugi::node_element)
            continue;
        const std::string uri = xmlutil::NamespaceOf(node);
        const std::string_view name = xmlutil::LocalName(node);
        if (uri == ns::dc) {
            if (name == "title")
                TakeFirst(info.title, title, node);
            else if (name == "subject")
                TakeFirst(info.topic, topic, node);
            else if (name == "creator")
                TakeFirst(info.modifiedBy, modifiedBy, node);
            else if (name == "date")
                TakeStamp(info.modifiedDate, info.modifiedTime, node);
            else if (name == "description")
                TakeFirst(info.comment, comment, node);
        } else if (uri == ns::meta) {
            if (name == "initial-creator")
                TakeFirst(info.author, author, node);
            else if (name == "creation-date")
                TakeStamp(info.createdDate, info.createdTime, node);
            else if (name == "printed-by")
                TakeFirst(info.printedBy, printedBy, node);
            else if (name == "print-date")
                TakeStamp(info.printedDate, info.printedTime, node);
            else if (name == "keyword" && !xmlutil::Text(node).empty())
                keywords.push_back(xmlutil::Text(node));
            else if (name == "user-defined" && infoCount < info.info.size())
                info.info[infoCount++] = xmlutil::Text(node);
        }
    }
    info.keywords = Join(keywords);
}
