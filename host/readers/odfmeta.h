#pragma once
// Editing an ODF meta.xml document and the package manifest.
#include <string>
#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "host/readers/metafields.h"

namespace odfmeta {

// An empty <office:document-meta> with its <office:meta>.
void NewDocument(pugi::xml_document& doc);
// The <office:meta> element; created if `doc` has its root but not this element.
// Empty when the root is neither <office:document-meta> (meta.xml) nor <office:document>
// (flat ODF).
pugi::xml_node MetaElement(pugi::xml_document& doc);

// dc:* and meta:* fields that occur once: `uri` is ns::dc or ns::meta.
void SetField(pugi::xml_document& doc, const char* uri, const char* local, std::string_view value);
// One <meta:keyword> per item, replacing all.
void SetKeywords(pugi::xml_document& doc, const std::vector<std::string>& keywords);
// <meta:user-defined> fields: `fields` become the first ones, in their order, replacing
// fields of the same names; other fields follow as they were.
void SetUserFields(pugi::xml_document& doc, const InfoFields& fields);
bool HasUserFields(pugi::xml_document& doc);

// Whether the manifest lists `path` with encryption data.
bool ManifestEncrypts(const pugi::xml_document& manifest, const std::string& path);
// Adds a <manifest:file-entry> for `path` unless there is one.
void ManifestAdd(pugi::xml_document& manifest, const std::string& path, const std::string& mediaType);

}  // namespace odfmeta
