// Writes the editable fields into an ODF package's meta.xml.
#include "host/readers/formatwriters.h"
#include "host/readers/namespaces.h"
#include "host/readers/odfmeta.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

constexpr const char* kManifest = "META-INF/manifest.xml";

bool Damaged(std::string& error, const std::string& detail)
{
    error = std::string(writeerrors::damaged) + ": " + detail;
    return false;
}

}  // namespace

bool WriteOdfMeta(ZipArchive& zip, const DocMeta& meta, std::string& error)
{
    std::string bytes;
    pugi::xml_document manifest;
    const bool hasManifest =
        zip.Read(kManifest, kMaxXmlPart, bytes) == ZipRead::Ok && xmlutil::Parse(bytes, manifest, true);
    if (hasManifest && odfmeta::ManifestEncrypts(manifest, "meta.xml")) {
        error = writeerrors::encrypted;
        return false;
    }

    pugi::xml_document doc;
    switch (zip.Read("meta.xml", kMaxXmlPart, bytes)) {
    case ZipRead::Ok:
        if (!xmlutil::Parse(bytes, doc, true) || !odfmeta::MetaElement(doc))
            return Damaged(error, "meta.xml is not valid.");
        break;
    case ZipRead::Missing:
        // A package without information gets a meta.xml of its own.
        odfmeta::NewDocument(doc);
        if (hasManifest) {
            odfmeta::ManifestAdd(manifest, "meta.xml", "text/xml");
            if (!zip.Put(kManifest, xmlutil::Save(manifest)))
                return Damaged(error, zip.Error());
        }
        break;
    case ZipRead::Encrypted: error = writeerrors::encrypted; return false;
    case ZipRead::TooLarge: return Damaged(error, "meta.xml is too large.");
    case ZipRead::Damaged: return Damaged(error, "meta.xml cannot be read.");
    }

    odfmeta::SetField(doc, ns::dc, "title", meta.title);
    odfmeta::SetField(doc, ns::dc, "subject", meta.topic);
    odfmeta::SetField(doc, ns::dc, "description", meta.comment);
    if (meta.author)
        odfmeta::SetField(doc, ns::meta, "initial-creator", *meta.author);
    odfmeta::SetKeywords(doc, SplitKeywords(meta.keywords));
    odfmeta::SetUserFields(doc, InfoFieldsOf(meta, odfmeta::HasUserFields(doc)));
    if (!zip.Put("meta.xml", xmlutil::Save(doc)))
        return Damaged(error, zip.Error());
    return true;
}
