#pragma once
// Editing the property parts of an OOXML package and registering new parts.
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "host/readers/metafields.h"

class ZipArchive;

namespace ooxmlprops {

// An empty <cp:coreProperties> with the usual namespace declarations.
void NewCore(pugi::xml_document& doc);
// An empty <Properties> of custom properties.
void NewCustom(pugi::xml_document& doc);

// A core property that occurs once (`uri` is ns::dc, ns::cp or ns::dcterms);
// empty `value` removes it.
void SetCore(pugi::xml_document& doc, const char* uri, const char* local, std::string_view value);
// A dcterms:created / dcterms:modified stamp, typed as W3C date-time.
void SetCoreStamp(pugi::xml_document& doc, const char* local, const std::string& isoUtc);
// Custom properties: `fields` (as text) become the first, in their order, replacing
// properties of the same names; the others follow; ids are renumbered from 2.
void SetCustom(pugi::xml_document& doc, const InfoFields& fields);
bool HasCustom(const pugi::xml_document& doc);

// Makes `part` known to the package: a content type override in [Content_Types].xml
// and a package relationship of `relType`, each added only if missing. False when the
// package's own lists are missing or not well-formed.
bool RegisterPart(ZipArchive& zip, const std::string& part, const char* contentType, const char* relType);

}  // namespace ooxmlprops
