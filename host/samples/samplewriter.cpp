// Sample documents: the format dispatch and the ODF text document.
#include "host/samples/samplewriter.h"

#include <fstream>

#include "host/readers/metadates.h"
#include "host/readers/namespaces.h"
#include "host/readers/odfmeta.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

constexpr const char* kOdtMime = "application/vnd.oasis.opendocument.text";
constexpr const char* kGenerator = "DocManager Samples";

pugi::xml_node Root(pugi::xml_document& doc, const char* name)
{
    pugi::xml_node decl = doc.append_child(pugi::node_declaration);
    decl.append_attribute("version") = "1.0";
    decl.append_attribute("encoding") = "UTF-8";
    return doc.append_child(name);
}

std::string Manifest()
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "manifest:manifest");
    root.append_attribute("xmlns:manifest") = ns::manifest;
    root.append_attribute("manifest:version") = "1.2";
    pugi::xml_node top = root.append_child("manifest:file-entry");
    top.append_attribute("manifest:full-path") = "/";
    top.append_attribute("manifest:version") = "1.2";
    top.append_attribute("manifest:media-type") = kOdtMime;
    for (const char* part : {"content.xml", "styles.xml", "meta.xml"}) {
        pugi::xml_node entry = root.append_child("manifest:file-entry");
        entry.append_attribute("manifest:full-path") = part;
        entry.append_attribute("manifest:media-type") = "text/xml";
    }
    return xmlutil::Save(doc);
}

void AppendParagraphs(pugi::xml_node text, const SampleDoc& sample);

std::string Content(const SampleDoc& sample)
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "office:document-content");
    root.append_attribute("xmlns:office") = ns::office;
    root.append_attribute("xmlns:text") = ns::text;
    root.append_attribute("office:version") = "1.2";
    AppendParagraphs(root.append_child("office:body").append_child("office:text"), sample);
    return xmlutil::Save(doc);
}

std::string Styles()
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "office:document-styles");
    root.append_attribute("xmlns:office") = ns::office;
    root.append_attribute("xmlns:style") = "urn:oasis:names:tc:opendocument:xmlns:style:1.0";
    root.append_attribute("xmlns:fo") = "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0";
    root.append_attribute("office:version") = "1.2";
    root.append_child("office:styles");
    return xmlutil::Save(doc);
}

// The information of a sample into a meta.xml document or a flat document.
void FillMeta(pugi::xml_document& doc, const SampleDoc& sample)
{
    using metadates::IsoLocal;
    odfmeta::SetField(doc, ns::meta, "generator", kGenerator);
    odfmeta::SetField(doc, ns::dc, "title", sample.title);
    odfmeta::SetField(doc, ns::dc, "subject", sample.topic);
    odfmeta::SetField(doc, ns::dc, "description", sample.comment);
    odfmeta::SetField(doc, ns::meta, "initial-creator", sample.author);
    odfmeta::SetField(doc, ns::meta, "creation-date", IsoLocal(sample.created));
    odfmeta::SetField(doc, ns::dc, "creator", sample.modifiedBy);
    odfmeta::SetField(doc, ns::dc, "date", IsoLocal(sample.modified));
    if (sample.printed) {
        odfmeta::SetField(doc, ns::meta, "printed-by", sample.printedBy);
        odfmeta::SetField(doc, ns::meta, "print-date", IsoLocal(*sample.printed));
    }
    odfmeta::SetKeywords(doc, sample.keywords);
    odfmeta::SetUserFields(doc, sample.info);
}

std::string Meta(const SampleDoc& sample)
{
    pugi::xml_document doc;
    odfmeta::NewDocument(doc);
    FillMeta(doc, sample);
    return xmlutil::Save(doc);
}

void AppendParagraphs(pugi::xml_node text, const SampleDoc& sample)
{
    for (const std::string& paragraph : SampleParagraphs(sample.body))
        xmlutil::SetText(text.append_child("text:p"), paragraph);
}

// A flat text document: the information, then the body, in one XML file.
std::string FlatDocument(const SampleDoc& sample)
{
    pugi::xml_document doc;
    pugi::xml_node root = Root(doc, "office:document");
    root.append_attribute("xmlns:office") = ns::office;
    root.append_attribute("xmlns:meta") = ns::meta;
    root.append_attribute("xmlns:dc") = ns::dc;
    root.append_attribute("xmlns:text") = ns::text;
    root.append_attribute("office:version") = "1.2";
    root.append_attribute("office:mimetype") = kOdtMime;
    AppendParagraphs(root.append_child("office:body").append_child("office:text"), sample);
    FillMeta(doc, sample);
    return xmlutil::Save(doc);
}

bool EndsWith(const std::string& s, const char* end)
{
    const std::string e = end;
    return s.size() >= e.size() && s.compare(s.size() - e.size(), e.size(), e) == 0;
}

}  // namespace

std::vector<std::string> SampleParagraphs(const std::string& body)
{
    std::vector<std::string> paragraphs;
    size_t start = 0;
    while (start <= body.size()) {
        size_t end = body.find('\n', start);
        if (end == std::string::npos)
            end = body.size();
        paragraphs.push_back(body.substr(start, end - start));
        start = end + 1;
    }
    return paragraphs;
}

std::string JoinedKeywords(const SampleDoc& doc)
{
    std::string joined;
    for (const std::string& keyword : doc.keywords) {
        if (!joined.empty())
            joined += ", ";
        joined += keyword;
    }
    return joined;
}

bool WriteSampleOdt(const std::string& path, const SampleDoc& doc, std::string& error)
{
    ZipArchive zip;
    zip.SetEntryTime(doc.modified.toSecsSinceEpoch());
    // The mimetype entry comes first and stored, so the type shows at a fixed offset.
    const bool ok = zip.Open(path, ZipArchive::Mode::Create) && zip.Put("mimetype", kOdtMime, false) &&
                    zip.Put("META-INF/manifest.xml", Manifest()) && zip.Put("content.xml", Content(doc)) &&
                    zip.Put("styles.xml", Styles()) && zip.Put("meta.xml", Meta(doc)) && zip.Commit();
    if (!ok)
        error = "Cannot write " + path + ": " + zip.Error();
    return ok;
}

bool WriteSampleFodt(const std::string& path, const SampleDoc& doc, std::string& error)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = FlatDocument(doc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    if (out.flush())
        return true;
    error = "Cannot write " + path;
    return false;
}

bool WriteSample(const std::string& path, const SampleDoc& doc, std::string& error)
{
    if (EndsWith(path, ".fodt"))
        return WriteSampleFodt(path, doc, error);
    if (EndsWith(path, ".rtf"))
        return WriteSampleRtf(path, doc, error);
    if (EndsWith(path, ".odt"))
        return WriteSampleOdt(path, doc, error);
    if (EndsWith(path, ".docx"))
        return WriteSampleDocx(path, doc, error);
    if (EndsWith(path, ".pdf"))
        return WriteSamplePdf(path, doc, error);
    error = "Sample documents are .odt, .fodt, .docx, .rtf or .pdf files: " + path;
    return false;
}
