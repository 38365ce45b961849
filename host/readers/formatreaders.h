#pragma once
// The per-format halves of ReadDocument. Each fills what it can find, leaves the rest as
// it is and tells what kept it from reading the document in full; none throws.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/docformat.h"
#include "host/readers/readproblem.h"

class ZipArchive;

ReadProblem ReadOdfInfo(const ZipArchive& zip, DocInfo& info);
ReadProblem ReadFlatOdfInfo(const std::string& path, DocInfo& info);
ReadProblem ReadOoxmlInfo(const ZipArchive& zip, DocInfo& info);
ReadProblem ReadPdfInfo(const std::string& path, uint64_t fileSize, DocInfo& info);
ReadProblem ReadRtfInfo(const std::string& path, DocInfo& info);
// An OLE compound file: a legacy Office document, or an OOXML document that Office
// encrypted into one. Sets `isDocument` when its streams or `byName` say it is one.
ReadProblem ReadOleInfo(const std::string& path, DocFormat byName, DocInfo& info, bool& isDocument);
