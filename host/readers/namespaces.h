#pragma once
// XML namespaces and package names of the formats the host reads and writes.

namespace ns {

// ODF
inline constexpr const char* office = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
inline constexpr const char* meta = "urn:oasis:names:tc:opendocument:xmlns:meta:1.0";
inline constexpr const char* dc = "http://purl.org/dc/elements/1.1/";
inline constexpr const char* manifest = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";
inline constexpr const char* text = "urn:oasis:names:tc:opendocument:xmlns:text:1.0";

// OOXML (Open Packaging Conventions)
inline constexpr const char* cp = "http://schemas.openxmlformats.org/package/2006/metadata/core-properties";
inline constexpr const char* dcterms = "http://purl.org/dc/terms/";
inline constexpr const char* dcmitype = "http://purl.org/dc/dcmitype/";
inline constexpr const char* xsi = "http://www.w3.org/2001/XMLSchema-instance";
inline constexpr const char* custom = "http://schemas.openxmlformats.org/officeDocument/2006/custom-properties";
inline constexpr const char* vt = "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes";
inline constexpr const char* extended = "http://schemas.openxmlformats.org/officeDocument/2006/extended-properties";
inline constexpr const char* contentTypes = "http://schemas.openxmlformats.org/package/2006/content-types";
inline constexpr const char* relationships = "http://schemas.openxmlformats.org/package/2006/relationships";
inline constexpr const char* wordml = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";

// XMP, as PDF keeps it in the catalog's metadata stream
inline constexpr const char* rdf = "http://www.w3.org/1999/02/22-rdf-syntax-ns#";
inline constexpr const char* xmp = "http://ns.adobe.com/xap/1.0/";
inline constexpr const char* pdf = "http://ns.adobe.com/pdf/1.3/";
inline constexpr const char* xmpMeta = "adobe:ns:meta/";

}  // namespace ns

namespace opc {

inline constexpr const char* coreRelType =
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
inline constexpr const char* customRelType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/custom-properties";
inline constexpr const char* extendedRelType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties";
inline constexpr const char* documentRelType =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument";
inline constexpr const char* coreType = "application/vnd.openxmlformats-package.core-properties+xml";
inline constexpr const char* customType = "application/vnd.openxmlformats-officedocument.custom-properties+xml";
inline constexpr const char* extendedType = "application/vnd.openxmlformats-officedocument.extended-properties+xml";
inline constexpr const char* relsType = "application/vnd.openxmlformats-package.relationships+xml";
// Format id that Office gives every user-defined property.
inline constexpr const char* customFmtId = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";

inline constexpr const char* contentTypesPart = "[Content_Types].xml";
inline constexpr const char* rootRelsPart = "_rels/.rels";
inline constexpr const char* defaultCorePart = "docProps/core.xml";
inline constexpr const char* defaultCustomPart = "docProps/custom.xml";

}  // namespace opc

namespace pdfkeys {

// Info dictionary entry listing the names of the four information fields in their
// order, since a PDF dictionary keeps no order of its own.
inline constexpr const char* infoOrder = "/DocMgrInfoOrder";

}  // namespace pdfkeys
