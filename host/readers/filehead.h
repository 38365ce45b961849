#pragma once
// The first bytes of a file, read straight into a buffer the size of what is read.
#include <cstddef>
#include <string>

// Up to `limit` bytes from the start of `path` into `out`; false when it cannot be opened.
// `whole` tells whether that was the whole file.
bool ReadFileHead(const std::string& path, size_t limit, std::string& out, bool& whole);
