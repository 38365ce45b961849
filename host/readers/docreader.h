#pragma once
// Document information of real files: ODF packages (.odt .ods .odp .odg and their
// templates), OOXML packages (.docx .xlsx .pptx and their macro and template variants)
// and PDF.
#include <memory>
#include <string>

#include "docmgr/records/docinfo.h"

// The information of the file at `path` (`entry` = path, `size` = its size, capped below
// NO_DOC_INFO). A file that is a document by extension or by content but cannot be read
// (encrypted, damaged, too large to inflate) still yields a DocInfo with whatever could
// be read. Null only for a file that is a document neither by name nor by content, and
// for a path that is not a regular file. Never throws.
std::unique_ptr<DocInfo> ReadDocInfo(const std::string& path);
