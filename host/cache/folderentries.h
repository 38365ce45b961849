#pragma once
// The entries of one folder as the cache keeps them: one blob a folder, so that a listing
// fetches and writes a folder at once, not a row a document.
#include <cstdint>
#include <string>
#include <string_view>

#include "host/readers/fileidentity.h"

// One entry as it lies in the blob; its views point into the blob.
struct FolderEntry {
    std::string_view name;
    FileIdentity id;
    int64_t seenDay = 0;
    std::string_view packed;  // what PackReading made of the reading
};

// Appends an entry to a folder's blob.
void AppendEntry(std::string& blob, std::string_view name, const FileIdentity& id, int64_t seenDay,
                 std::string_view packed);

// Walks the entries of a blob in order.
class FolderEntries {
public:
    explicit FolderEntries(std::string_view blob) : rest_(blob) {}
    // The next entry; false at the end, or at a cut or malformed entry (the rest is lost).
    bool Next(FolderEntry& entry);

private:
    std::string_view rest_;
};
