#pragma once
// The per-format halves of ReadDocInfo. Each fills what it can find and leaves the
// rest as it is; none throws.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"

class ZipArchive;

void ReadOdfInfo(const ZipArchive& zip, DocInfo& info);
void ReadOoxmlInfo(const ZipArchive& zip, DocInfo& info);
void ReadPdfInfo(const std::string& path, uint64_t fileSize, DocInfo& info);
