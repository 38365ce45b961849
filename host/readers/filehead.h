#pragma once
// The first bytes of a file, read straight into a buffer the size of what is read.
#include <cstddef>
#include <string>

// Up to `limit` bytes from the start of `path` into `out`; false when it cannot be opened.
// `whole` tells whether that was the whole file.
bool ReadFileHead(const std::string& path, size_t limit, std::string& out, bool& whole);

// A document as the readers take it: its file opened and read once, whole when it is no
// larger than kDocBytesLimit. Of a larger file `bytes` holds the first kDocBytesLimit
// bytes, which the heads of RTF and flat ODF need at most, and the zip, PDF and OLE
// readers read it from `path` themselves.
constexpr size_t kDocBytesLimit = 8u << 20;

struct DocBytes {
    std::string path;
    std::string bytes;
    bool whole = false;
};

// False when the file cannot be opened.
bool ReadDocBytes(const std::string& path, DocBytes& doc);
