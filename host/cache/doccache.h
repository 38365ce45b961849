#pragma once
// The reference host's per-user store of what reading a document gave, so that documents
// the folder index cannot hold (long names, folders the user may only read) are not read
// again while they stay the same file. One SQLite connection, used on one thread only.
// Every failure (locked, damaged, disk full, not writable) turns the store off for a while
// and the documents are read instead: the rows are the same either way.
#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>

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

    // Every entry of the folder `dir`, by file name (their `entry` paths left empty);
    // nothing when the store is off.
    std::unordered_map<std::string, Entry> Folder(const std::string& dir);
    bool Find(const std::string& path, Entry& entry);
    // Written in the open transaction (begun here when none is).
    void Store(const std::string& path, const FileIdentity& id, const DocReading& reading);
    void Seen(const std::string& path);
    // Commits the open transaction, pruning first when it is due.
    void Flush();
    size_t Pending() const { return inTransaction_ ? inserted_ + 1 : 0; }
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
