#pragma once
// The first bytes of a file, read straight into a buffer the size of what is read.
#include <cstddef>
#include <cstdint>
#include <string>

// Up to `limit` bytes from the start of `path` into `out`; false when it cannot be opened.
// `whole` tells whether that was the whole file.
bool ReadFileHead(const std::string& path, size_t limit, std::string& out, bool& whole);

// A document as the readers take it: a file no larger than kWholeReadLimit is opened and
// read once, whole, and every reader works from its bytes. Of a larger file (pictures,
// scans) only the first kSignatureBytes are read, and each reader reads from `path` what
// its library needs, which for a zip or a PDF is a small part of the file.
constexpr size_t kWholeReadLimit = 1u << 20;
constexpr size_t kSignatureBytes = 1024;

struct DocBytes {
    std::string path;
    std::string bytes;
    bool whole = false;
};

// False when the file cannot be opened. `fileSize` is its size as last seen.
bool ReadDocBytes(const std::string& path, uint64_t fileSize, DocBytes& doc);
