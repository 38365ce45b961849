// Writes the editable fields into an OOXML package's core and custom property parts.
#include "host/readers/formatwriters.h"
#include "host/readers/namespaces.h"
#include "host/readers/ooxmlprops.h"
#include "host/readers/opcparts.h"
#include "host/readers/xmlutil.h"
#include "host/readers/ziparchive.h"

namespace {

bool Damaged(std::string& error, const std::string& detail)
{
    error = std::string(writeerrors::damaged) + ": " + detail;
    return false;
}

// Loads a property part for editing, or starts a new one (registered in the package)
// when the package has none.
bool LoadOrCreate(ZipArchive& zip, const std::string& part, pugi::xml_document& doc, bool create,
                  void (*newDocument)(pugi::xml_document&), const char* contentType, const char* relType,
                  std::string& error)
{
    std::string bytes;
    switch (zip.Read(part, kMaxXmlPart, bytes)) {
    case ZipRead::Ok:
        if (!xmlutil::Parse(bytes, doc, true))
            return Damaged(error, part + " is not valid.");
        return true;
    case ZipRead::Missing:
        if (!create)
            return true;
        newDocument(doc);
        if (!ooxmlprops::RegisterPart(zip, part, contentType, relType))
            return Damaged(error, "the package's part lists are missing or not valid.");
        return true;
    case ZipRead::Encrypted: error = writeerrors::encrypted; return false;
    case ZipRead::TooLarge: return Damaged(error, part + " is too large.");
    case ZipRead::Damaged: break;
    }
    return Damaged(error, part + " cannot be read.");
}

}  // namespace

bool WriteOoxmlMeta(ZipArchive& zip, const DocMeta& meta, std::string& error)
{
    const OpcPropertyParts parts = LocatePropertyParts(zip);

    pugi::xml_document core;
    if (!LoadOrCreate(zip, parts.core, core, true, ooxmlprops::NewCore, opc::coreType, opc::coreRelType, error))
        return false;
    ooxmlprops::SetCore(core, ns::dc, "title", meta.title);
    ooxmlprops::SetCore(core, ns::dc, "subject", meta.topic);
    ooxmlprops::SetCore(core, ns::cp, "keywords", meta.keywords);
    ooxmlprops::SetCore(core, ns::dc, "description", meta.comment);
    if (meta.author)
        ooxmlprops::SetCore(core, ns::dc, "creator", *meta.author);
    if (!zip.Put(parts.core, xmlutil::Save(core)))
        return Damaged(error, zip.Error());

    // A custom part is created only when there are fields to put in it.
    pugi::xml_document custom;
    if (!LoadOrCreate(zip, parts.custom, custom, false, nullptr, nullptr, nullptr, error))
        return false;
    const InfoFields fields = InfoFieldsOf(meta, custom.document_element() && ooxmlprops::HasCustom(custom));
    if (fields.empty())
        return true;
    if (!custom.document_element() && !LoadOrCreate(zip, parts.custom, custom, true, ooxmlprops::NewCustom,
                                                    opc::customType, opc::customRelType, error))
        return false;
    ooxmlprops::SetCustom(custom, fields);
    if (!zip.Put(parts.custom, xmlutil::Save(custom)))
        return Damaged(error, zip.Error());
    return true;
}
