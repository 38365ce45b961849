#pragma once
// The reference host's per-user store of what reading a document gave, so that documents
// the folder index cannot hold (long names, folders the user may only read) are not read
// again while they stay the same file. One SQLite connection, used on one thread only; a
// folder's entries are one row, fetched and written at once.
// Every failure (locked, damaged, disk full, not writable) turns the store off for a while
// and the documents are read instead: the rows are the same either way.
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "host/cache/folderentries.h"
#include "host/readers/docreader.h"

struct sqlite3;
struct sqlite3_stmt;

class DocCache {
public:
    using Warn = std::function<void(const std::string&)>;
    struct Entry {
        FileIdentity id;
        DocReading reading;  // info null: not a document
        int64_t seenDay = 0;
    };

    // Nothing is opened before the first use.
    DocCache(std::string file, Warn warn);
    ~DocCache();
    DocCache(const DocCache&) = delete;
    DocCache& operator=(const DocCache&) = delete;

    // $XDG_CACHE_HOME/docmanager/docinfo.sqlite, ~/.cache/... without it; empty when
    // neither is known.
    static std::string DefaultFile();
    static int64_t Today();

    // Goes through the entries of the folder `dir` in one pass: `current` says from the
    // name and the stored identity whether an entry still stands for its file, and `hit`
    // gets those that do, read in full (their `entry` paths left empty). Entries of files
    // nobody asked for cost no more than their identity. Nothing when the store is off.
    using IsCurrent = std::function<bool(std::string_view name, const FileIdentity& stored)>;
    using TakeHit = std::function<void(std::string_view name, Entry&& entry)>;
    void Folder(const std::string& dir, const IsCurrent& current, const TakeHit& hit);
    // The entry of one file, also one kept since the last Flush.
    bool Find(const std::string& path, Entry& entry);
    // Kept until the next Flush; `packed` is what PackReading made of the reading.
    void Store(const std::string& path, const FileIdentity& id, std::string_view packed);
    // Marks the entry of `path` as seen today (entries unseen for long are pruned).
    void Seen(const std::string& path);
    // Writes what was kept, a folder a row, in one transaction, pruning first when due.
    void Flush();
    // Entries and marks kept since the last Flush.
    size_t Pending() const { return pendingCount_; }

private:
    struct PendingFolder {
        std::string blob;                      // the new entries (AppendEntry)
        std::unordered_set<std::string> seen;  // names of old entries seen today
    };

    bool Ready();
    bool Open();
    bool MakePrivateFile();
    bool MakeSchema();
    void Close();
    // Handles a failed call: a damaged file is moved aside and rebuilt, anything else
    // turns the store off for a while.
    void Failed(int rc);
    // Rolls the open transaction back, then as Failed.
    void Abandon(int rc);
    void MoveAside();
    bool Exec(const char* sql);
    sqlite3_stmt* Prepare(const char* sql);
    // The stored blob of `dir` (empty when none); false when the store failed.
    bool LoadFolder(const std::string& dir, std::string& blob);
    bool WriteFolder(const std::string& dir, const PendingFolder& pending, int64_t today, int64_t& written);
    bool WriteRow(const std::string& dir, int64_t today, int64_t count, std::string_view blob);
    void Prune(int64_t today);

    std::string file_;
    Warn warn_;
    sqlite3* db_ = nullptr;
    sqlite3_stmt* select_ = nullptr;
    sqlite3_stmt* write_ = nullptr;
    sqlite3_stmt* erase_ = nullptr;
    bool movedAside_ = false;
    std::chrono::steady_clock::time_point offUntil_{};
    std::unordered_map<std::string, PendingFolder> pending_;
    size_t pendingCount_ = 0;
    // The folder Find looked in last: its blob, and each name's entry in it.
    bool foundLoaded_ = false;
    std::string foundDir_;
    std::string foundBlob_;
    std::unordered_map<std::string_view, FolderEntry> foundEntries_;
};
