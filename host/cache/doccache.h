#pragma once
// The reference host's per-user store of what reading a document gave, so that documents
// the folder index cannot hold (long names, folders the user may only read) are not read
// again while they stay the same file. One SQLite connection; its calls are taken one at a
// time, so that a writer thread and the listing's thread may share it.
// Every failure (locked, damaged, disk full, not writable) turns the store off for a while
// and the documents are read instead: the rows are the same either way.
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

#include "host/readers/docreader.h"
#include "host/readers/fileidentity.h"

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

    // Goes through the entries of the folder `dir` in one scan: `current` says from the
    // name and the stored identity whether an entry still stands for its file, and `hit`
    // gets those that do, read in full (their `entry` paths left empty). Entries of files
    // nobody asked for cost no more than their identity. Nothing when the store is off.
    using IsCurrent = std::function<bool(std::string_view name, const FileIdentity& stored)>;
    using TakeHit = std::function<void(std::string_view name, Entry&& entry)>;
    void Folder(const std::string& dir, const IsCurrent& current, const TakeHit& hit);
    bool Find(const std::string& path, Entry& entry);
    // Written in the open transaction (begun here when none is); `packed` is what
    // PackReading made of the reading.
    void Store(const std::string& path, const FileIdentity& id, std::string_view packed);
    void Seen(const std::string& path);
    // Commits the open transaction, pruning first when it is due.
    void Flush();
    size_t Pending() const;
    static int64_t Today();

private:
    bool Ready();
    bool Open();
    void Close();
    // Handles a failed call: a damaged file is moved aside and rebuilt, anything else
    // turns the store off for a while.
    void Failed(int rc);
    bool Begin();
    // Rolls the open transaction back, then as Failed.
    void Abandon(int rc);
    void MoveAside();
    bool Exec(const char* sql);
    sqlite3_stmt* Prepare(const char* sql);
    void Prune(int64_t today);

    mutable std::mutex mutex_;
    std::string file_;
    Warn warn_;
    sqlite3* db_ = nullptr;
    sqlite3_stmt* folder_ = nullptr;
    sqlite3_stmt* one_ = nullptr;
    sqlite3_stmt* insert_ = nullptr;
    sqlite3_stmt* seen_stmt_ = nullptr;
    bool movedAside_ = false;
    std::chrono::steady_clock::time_point offUntil_{};
    bool inTransaction_ = false;
    size_t inserted_ = 0;
};
