#pragma once
// The document information inside an ODF <office:meta> element, shared by packages
// (meta.xml) and flat ODF files (the element inside <office:document>).
#include <pugixml.hpp>

#include "docmgr/records/docinfo.h"

void ReadOdfMetaFields(pugi::xml_node meta, DocInfo& info);
