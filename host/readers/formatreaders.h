#pragma once
// The per-format halves of ReadDocument. Each fills what it can find, leaves the rest as
// it is and tells what kept it from reading the document in full; none throws.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/docformat.h"
#include "host/readers/readproblem.h"

class ZipArchive;
struct DocBytes;

ReadProblem ReadOdfInfo(const ZipArchive& zip, DocInfo& info);
ReadProblem ReadFlatOdfInfo(const DocBytes& doc, DocInfo& info);
ReadProblem ReadOoxmlInfo(const ZipArchive& zip, DocInfo& info);
ReadProblem ReadPdfInfo(const DocBytes& doc, uint64_t fileSize, DocInfo& info);
ReadProblem ReadRtfInfo(const DocBytes& doc, DocInfo& info);
// An OLE compound file: a legacy Office document, or an OOXML document that Office
// encrypted into one. Sets `isDocument` when its streams or `byName` say it is one.
ReadProblem ReadOleInfo(const DocBytes& doc, DocFormat byName, DocInfo& info, bool& isDocument);
