// Sample documents: the Word (DOCX) document.
#include "host/readers/metadates.h"
#include "host/readers/namespaces.h"
#include "host/readers/ooxmlprops.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"
#include "host/samples/samplewriter.h"

namespace {

constexpr const char* kDocumentType =
    "application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml";

pugi::xml_node Root(pugi::xml_document& doc, const char* name, const char* defaultNs)
{
    pugi::xml_node decl = doc.append_child(pugi::node_declaration);
    decl.append_attribute("version") = "1.0";
    decl.append_attribute("encoding") = "UTF-8";
    decl.append_attribute("standalone") = "yes";
    pugi::xml_node root = doc.append_child(name);
    if (defaultNs)
        root.append_attribute("xmlns") = defaultNs;
    return root;
}

std::string ContentTypes(bool withCustom)
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "Types", ns::contentTypes);
    auto add = [&](const char* kind, const char* keyName, const char* key, const char* type) {
        pugi::xml_node n = root.append_child(kind);
        n.append_attribute(keyName) = key;
        n.append_attribute("ContentType") = type;
    };
    add("Default", "Extension", "rels", opc::relsType);
    add("Default", "Extension", "xml", "application/xml");
    add("Override", "PartName", "/word/document.xml", kDocumentType);
    add("Override", "PartName", "/docProps/core.xml", opc::coreType);
    add("Override", "PartName", "/docProps/app.xml", opc::extendedType);
    if (withCustom)
        add("Override", "PartName", "/docProps/custom.xml", opc::customType);
    return xmlutil::Save(doc);
}

std::string PackageRels(bool withCustom)
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "Relationships", ns::relationships);
    int id = 1;
    auto add = [&](const char* type, const char* target) {
        pugi::xml_node n = root.append_child("Relationship");
        n.append_attribute("Id") = ("rId" + std::to_string(id++)).c_str();
        n.append_attribute("Type") = type;
        n.append_attribute("Target") = target;
    };
    add(opc::documentRelType, "word/document.xml");
    add(opc::coreRelType, "docProps/core.xml");
    add(opc::extendedRelType, "docProps/app.xml");
    if (withCustom)
        add(opc::customRelType, "docProps/custom.xml");
    return xmlutil::Save(doc);
}

std::string Document(const SampleDoc& sample)
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "w:document", nullptr);
    root.append_attribute("xmlns:w") = ns::wordml;
    pugi::xml_node body = root.append_child("w:body");
    for (const std::string& paragraph : SampleParagraphs(sample.body)) {
        pugi::xml_node t = body.append_child("w:p").append_child("w:r").append_child("w:t");
        t.append_attribute("xml:space") = "preserve";
        xmlutil::SetText(t, paragraph);
    }
    return xmlutil::Save(doc);
}

std::string App()
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "Properties", ns::extended);
    root.append_attribute("xmlns:vt") = ns::vt;
    xmlutil::SetText(root.append_child("Application"), "DocManager Samples");
    return xmlutil::Save(doc);
}

std::string Core(const SampleDoc& sample)
{
    using metadates::IsoUtc;
    pugi::xml_document doc;
    ooxmlprops::NewCore(doc);
    ooxmlprops::SetCore(doc, ns::dc, "title", sample.title);
    ooxmlprops::SetCore(doc, ns::dc, "subject", sample.topic);
    ooxmlprops::SetCore(doc, ns::dc, "creator", sample.author);
    ooxmlprops::SetCore(doc, ns::cp, "keywords", JoinedKeywords(sample));
    ooxmlprops::SetCore(doc, ns::dc, "description", sample.comment);
    ooxmlprops::SetCore(doc, ns::cp, "lastModifiedBy", sample.modifiedBy);
    if (sample.printed)
        ooxmlprops::SetCore(doc, ns::cp, "lastPrinted", IsoUtc(*sample.printed));
    ooxmlprops::SetCoreStamp(doc, "created", IsoUtc(sample.created));
    ooxmlprops::SetCoreStamp(doc, "modified", IsoUtc(sample.modified));
    return xmlutil::Save(doc);
}

std::string Custom(const SampleDoc& sample)
{
    pugi::xml_document doc;
    ooxmlprops::NewCustom(doc);
    ooxmlprops::SetCustom(doc, sample.info);
    return xmlutil::Save(doc);
}

}  // namespace

bool WriteSampleDocx(const std::string& path, const SampleDoc& doc, std::string& error)
{
    const bool withCustom = !doc.info.empty();
    ZipArchive zip;
    zip.SetEntryTime(doc.modified.toSecsSinceEpoch());
    bool ok = zip.Open(path, ZipArchive::Mode::Create) && zip.Put(opc::contentTypesPart, ContentTypes(withCustom)) &&
              zip.Put(opc::rootRelsPart, PackageRels(withCustom)) && zip.Put("word/document.xml", Document(doc)) &&
              zip.Put("docProps/core.xml", Core(doc)) && zip.Put("docProps/app.xml", App());
    if (ok && withCustom)
        ok = zip.Put("docProps/custom.xml", Custom(doc));
    ok = ok && zip.Commit();
    if (!ok)
        error = "Cannot write " + path + ": " + zip.Error();
    return ok;
}
