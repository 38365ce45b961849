#pragma once
// Read-only copies of documents, for opening them without the risk of changing them.
#include <string>
#include <vector>

// Copies each document into a new folder under the temporary directory and takes the
// write permission from the copy. Returns the copies' paths in order; a document that
// cannot be copied is left out and named in `error`.
std::vector<std::string> MakeReadOnlyCopies(const std::vector<std::string>& paths, std::string& error);
