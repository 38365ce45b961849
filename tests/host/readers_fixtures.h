#pragma once
// Building documents for the reader and writer tests: full samples, hand-made packages
// and the raw entries of a zip.
#include <cstdint>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "host/samples/samplewriter.h"

namespace readertest {

// A sample with every field set, non-ASCII text included, printed once.
SampleDoc FullSample();

// Writes a zip with these entries in this order, each deflated unless its name is
// "mimetype".
void WriteZip(const std::string& path, const std::vector<std::pair<std::string, std::string>>& entries);
// An ODF package holding only a mimetype entry and a meta.xml with `metaChildren` inside
// <office:meta>.
void WriteOdfMeta(const std::string& path, const std::string& metaChildren);

// A one-page PDF whose Info dictionary is `infoDict` (PDF syntax), encrypted when a
// password is given, with `xmpPacket` as its metadata stream unless that is empty.
void WritePdf(const std::string& path, const std::string& infoDict, const char* userPassword = nullptr, const char* ownerPassword = nullptr,
              const std::string& xmpPacket = {});

// A legacy Word file: an OLE compound file with the property sets of `doc` (user fields
// as user-defined properties) and the head of a Word stream whose flags word (2 bytes,
// little-endian; "\0\1" marks it encrypted) is `wordFlags`.
void WriteOle(const std::string& path, const SampleDoc& doc, const std::string& wordFlags = std::string(2, '\0'));

struct RawEntry {
    std::string name;
    int method = 0;  // compression method
    uint32_t crc = 0;
    std::string raw;  // the stored (compressed) bytes
};
// Every entry of a zip in central directory order, with its bytes as stored.
std::vector<RawEntry> RawEntries(const std::string& path);

}  // namespace readertest
