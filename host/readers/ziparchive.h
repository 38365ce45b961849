#pragma once
// A zip package (ODF, OOXML) opened through libzip: bounded reads of single entries,
// and replacing or adding entries while every other entry is copied unchanged.
#include <cstddef>
#include <cstdint>
#include <list>
#include <memory>
#include <string>

struct zip;
struct DocBytes;

// Outcome of reading one entry.
enum class ZipRead {
    Ok,
    Missing,    // no such entry
    TooLarge,   // the entry inflates past the cap; reading stopped there
    Encrypted,  // the entry needs a password
    Damaged,    // bad data, bad checksum, or the entry cannot be opened
};

class ZipArchive {
public:
    enum class Mode {
        Read,    // read-only
        Modify,  // change entries of an existing file in place on Commit
        Create,  // new file, replacing any existing one on Commit
    };

    ZipArchive() = default;
    ~ZipArchive();
    ZipArchive(const ZipArchive&) = delete;
    ZipArchive& operator=(const ZipArchive&) = delete;

    // False when the file is missing or not a readable zip; Error() tells why.
    bool Open(const std::string& path, Mode mode);
    // Read-only, from the document's bytes when it was read whole (they must outlive the
    // archive), else from its path.
    bool Open(const DocBytes& doc);
    bool IsOpen() const { return zip_ != nullptr; }

    bool Has(const std::string& name) const;
    // True when some entry's name starts with `prefix`.
    bool HasPrefix(const std::string& prefix) const;
    // Reads one entry, inflating at most `cap` bytes; `out` holds what was read.
    ZipRead Read(const std::string& name, size_t cap, std::string& out) const;

    // Sets the entry's contents, replacing it in place or adding it at the end.
    // `compress` false stores it (needed for the ODF mimetype entry).
    bool Put(const std::string& name, std::string data, bool compress = true);
    // Modification time given to the entries put from now on (seconds since the epoch);
    // 0, the default, means the time of writing.
    void SetEntryTime(int64_t seconds) { entryTime_ = seconds; }
    // Writes the changes; false with Error() on failure. The archive is closed either way.
    bool Commit();

    const std::string& Error() const { return error_; }

private:
    void Close();

    zip* zip_ = nullptr;
    std::list<std::string> pending_;  // data of entries put, alive until Commit
    std::string error_;
    int64_t entryTime_ = 0;
};

// Upper bound on the bytes inflated from any one XML part of a package.
constexpr size_t kMaxXmlPart = 8u << 20;
