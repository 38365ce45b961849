#pragma once
// Document information of real files: ODF packages (.odt .ods .odp .odg and their
// templates) and flat ODF (.fodt .fods .fodp .fodg), OOXML packages (.docx .xlsx .pptx
// and their macro and template variants), legacy Office files (.doc .xls .ppt .dot .xlt
// .pot), RTF and PDF.
#include <cstddef>
#include <memory>
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/readproblem.h"

// A document's information and why it is incomplete, if it is.
struct DocReading {
    std::unique_ptr<DocInfo> info;
    ReadProblem problem = ReadProblem::None;
};

// The information of the file at `path` (`entry` = path, `size` = its size, capped below
// NO_DOC_INFO). A file that is a document by extension or by content but cannot be read
// (encrypted, damaged, too large to inflate) still yields a DocInfo with whatever could
// be read, and the problem says why. `info` is null only for a file that is a document
// neither by name nor by content, and for a path that is not a regular file. Never throws.
DocReading ReadDocument(const std::string& path);
// How many documents ReadDocument has been asked to read in this process (the cache's
// tests count what a listing reads).
size_t DocumentsRead();
// ReadDocument's information alone.
std::unique_ptr<DocInfo> ReadDocInfo(const std::string& path);
// True when no field of `info` holds anything (the file's path and size aside).
bool HoldsNoInformation(const DocInfo& info);
