#include "host/readers/docformat.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <string_view>

#include "host/readers/namespaces.h"
#include "host/readers/ziparchive.h"

DocFormat FormatByExtension(const std::string& path)
{
    const size_t dot = path.rfind('.');
    const size_t slash = path.rfind('/');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash))
        return DocFormat::None;
    std::string ext = path.substr(dot + 1);
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    static constexpr std::array<std::string_view, 8> odf = {"odt", "ods", "odp", "odg", "ott", "ots", "otp", "otg"};
    static constexpr std::array<std::string_view, 15> ooxml = {"docx", "docm", "dotx", "dotm", "xlsx",
                                                               "xlsm", "xltx", "xltm", "pptx", "pptm",
                                                               "potx", "potm", "ppsx", "ppsm", "xlsb"};
    if (std::find(odf.begin(), odf.end(), ext) != odf.end())
        return DocFormat::Odf;
    if (std::find(ooxml.begin(), ooxml.end(), ext) != ooxml.end())
        return DocFormat::Ooxml;
    static constexpr std::array<std::string_view, 4> flatOdf = {"fodt", "fods", "fodp", "fodg"};
    static constexpr std::array<std::string_view, 6> legacy = {"doc", "xls", "ppt", "dot", "xlt", "pot"};
    if (ext == "pdf")
        return DocFormat::Pdf;
    if (std::find(flatOdf.begin(), flatOdf.end(), ext) != flatOdf.end())
        return DocFormat::FlatOdf;
    if (std::find(legacy.begin(), legacy.end(), ext) != legacy.end())
        return DocFormat::LegacyOffice;
    if (ext == "rtf")
        return DocFormat::Rtf;
    return DocFormat::None;
}

namespace {

// An XML head (after an optional byte order mark and blanks) whose root element is the
// ODF office:document; producers put its namespace declaration right on that element.
bool IsFlatOdfHead(std::string_view head)
{
    if (head.substr(0, 3) == "\xEF\xBB\xBF")
        head.remove_prefix(3);
    const size_t start = head.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos || head[start] != '<')
        return false;
    const size_t root = head.find("<office:document");
    if (root == std::string_view::npos || root + 16 >= head.size())
        return false;
    const char after = head[root + 16];
    return (after == ' ' || after == '\t' || after == '\r' || after == '\n' || after == '>') &&
           head.find(ns::office) != std::string_view::npos;
}

}  // namespace

Signature ReadSignature(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    char head[1024];
    in.read(head, sizeof head);
    return SignatureOf(std::string_view(head, size_t(in.gcount())));
}

Signature SignatureOf(std::string_view head)
{
    // PDF readers accept a header anywhere in the first 1024 bytes.
    const std::string_view got = head.substr(0, 1024);
    if (got.find("%PDF-") != std::string_view::npos)
        return Signature::Pdf;
    if (got.substr(0, 4) == "PK\3\4" || got.substr(0, 4) == "PK\5\6")
        return Signature::Zip;
    if (got.substr(0, 8) == std::string_view("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8))
        return Signature::Cfb;
    if (got.substr(0, 5) == "{\\rtf")
        return Signature::Rtf;
    if (IsFlatOdfHead(got))
        return Signature::FlatOdf;
    return Signature::Other;
}

DocFormat FormatOfPackage(const ZipArchive& zip)
{
    if (zip.Has("meta.xml"))
        return DocFormat::Odf;
    std::string mimetype;
    if (zip.Read("mimetype", 256, mimetype) == ZipRead::Ok &&
        mimetype.rfind("application/vnd.oasis.opendocument.", 0) == 0)
        return DocFormat::Odf;
    if (zip.Has(opc::contentTypesPart) || zip.HasPrefix("docProps/"))
        return DocFormat::Ooxml;
    return DocFormat::None;
}

bool IsWritableFormat(DocFormat format)
{
    return format == DocFormat::Odf || format == DocFormat::Ooxml || format == DocFormat::Pdf;
}
