#pragma once
// Which of the supported formats a file is, by its name and by its first bytes.
#include <string>
#include <string_view>

class ZipArchive;

enum class DocFormat { None, Odf, Ooxml, Pdf, FlatOdf, Rtf, LegacyOffice };

// What the first bytes of a file say.
enum class Signature {
    Other,
    Pdf,      // "%PDF-" within the first 1024 bytes
    Zip,      // "PK\3\4" (or an empty archive's "PK\5\6")
    Cfb,      // OLE compound file: legacy Office, or a password-protected OOXML document
    Rtf,      // "{\rtf"
    FlatOdf,  // XML whose root is <office:document> in the ODF office namespace
};

// By file name extension, case-insensitive.
DocFormat FormatByExtension(const std::string& path);
Signature ReadSignature(const std::string& path);
// The same, from the file's first bytes (1024 are looked at).
Signature SignatureOf(std::string_view head);
// By the entries of an open zip: an ODF package or an OPC (OOXML) package; None for any
// other zip.
DocFormat FormatOfPackage(const ZipArchive& zip);
// Whether a format's information can be written back.
bool IsWritableFormat(DocFormat format);
