#include "host/cache/doccache.h"

#include "host/cache/packedreading.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

// Bumped whenever a reader gives other information for the same file, or the form of the
// store changes: the store is then emptied, so no row keeps what an older reader made of it.
constexpr int kVersion = 3;
constexpr int kBusyMs = 50;
constexpr int64_t kKeepDays = 90;
constexpr int64_t kMaxEntries = 200000;
constexpr int64_t kPruneAfterInserts = 20000;
// Frames of the log (pages of 64 KiB) after which a commit folds it into the database file.
constexpr int kFoldAtFrames = 16;
constexpr auto kOffFor = std::chrono::seconds(60);

void SplitPath(const std::string& path, std::string& dir, std::string& name)
{
    const size_t slash = path.rfind('/');
    dir = slash == std::string::npos ? std::string() : path.substr(0, slash);
    name = slash == std::string::npos ? path : path.substr(slash + 1);
}

void BindBlob(sqlite3_stmt* stmt, int at, std::string_view bytes)
{
    // An empty blob, never NULL: the root folder's name is empty.
    sqlite3_bind_blob(stmt, at, bytes.empty() ? "" : bytes.data(), int(bytes.size()), SQLITE_STATIC);
}

std::string_view Blob(sqlite3_stmt* stmt, int column)
{
    const void* data = sqlite3_column_blob(stmt, column);
    return data ? std::string_view(static_cast<const char*>(data), size_t(sqlite3_column_bytes(stmt, column)))
                : std::string_view();
}

// The entry of a folder's blob in full; false for a reading of another form.
bool EntryOf(const FolderEntry& stored, const std::string& path, DocCache::Entry& entry)
{
    entry.id = stored.id;
    entry.seenDay = stored.seenDay;
    if (!UnpackReading(stored.packed, entry.reading))
        return false;
    if (entry.reading.info)
        entry.reading.info->entry = path;
    return true;
}

// The log is folded in and emptied once it holds kFoldAtFrames: what is read from it costs
// a call a page where the database file is mapped, and a log that is only folded in, not
// emptied, is taken up again whole by the next process that opens the store, and grows.
int FoldLog(void*, sqlite3* db, const char* name, int frames)
{
    if (frames >= kFoldAtFrames)
        sqlite3_wal_checkpoint_v2(db, name, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    return SQLITE_OK;
}

bool IsDamage(int rc)
{
    return rc == SQLITE_CORRUPT || rc == SQLITE_NOTADB;
}

}  // namespace

DocCache::DocCache(std::string file, Warn warn) : file_(std::move(file)), warn_(std::move(warn))
{}

DocCache::~DocCache()
{
    Flush();
    Close();
}

std::string DocCache::DefaultFile()
{
    // The XDG base directory rules allow only absolute paths here.
    const char* xdg = std::getenv("XDG_CACHE_HOME");
    if (xdg && xdg[0] == '/')
        return std::string(xdg) + "/docmanager/docinfo.sqlite";
    const char* home = std::getenv("HOME");
    if (home && home[0] == '/')
        return std::string(home) + "/.cache/docmanager/docinfo.sqlite";
    return {};
}

int64_t DocCache::Today()
{
    return int64_t(std::time(nullptr)) / 86400;
}

bool DocCache::Ready()
{
    if (file_.empty())
        return false;
    if (db_)
        return true;
    if (std::chrono::steady_clock::now() < offUntil_)
        return false;
    return Open();
}

// A private folder and file: the store holds titles and authors of every document read.
bool DocCache::MakePrivateFile()
{
    const size_t slash = file_.rfind('/');
    const std::string folder = file_.substr(0, slash);
    // The base folder ($XDG_CACHE_HOME) is made as the base directory rules ask, 0700.
    for (size_t at = folder.find('/', 1); at != std::string::npos; at = folder.find('/', at + 1))
        ::mkdir(folder.substr(0, at).c_str(), 0700);
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        return false;
    struct stat st {};
    if (::stat(folder.c_str(), &st) == 0 && (st.st_mode & 07777) != 0700 && st.st_uid == geteuid())
        ::chmod(folder.c_str(), 0700);
    const int fd = ::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) {
        offUntil_ = std::chrono::steady_clock::now() + kOffFor;
        return false;
    }
    if (::fstat(fd, &st) == 0 && (st.st_mode & 0777) != 0600)
        ::fchmod(fd, 0600);
    ::close(fd);
    return true;
}

bool DocCache::Open()
{
    if (!MakePrivateFile())
        return false;
    if (sqlite3_open_v2(file_.c_str(), &db_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        Close();
        offUntil_ = std::chrono::steady_clock::now() + kOffFor;
        return false;
    }
    sqlite3_busy_timeout(db_, kBusyMs);
    // The log is folded in by the automatic checkpoints, not by a sync at every exit.
    sqlite3_db_config(db_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_wal_hook(db_, FoldLog, nullptr);
    sqlite3_stmt* version = nullptr;
    int rc = sqlite3_prepare_v2(db_, "PRAGMA user_version", -1, &version, nullptr);
    int have = -1;
    if (rc == SQLITE_OK) {
        rc = sqlite3_step(version);
        if (rc == SQLITE_ROW) {
            have = sqlite3_column_int(version, 0);
            rc = SQLITE_OK;
        }
    }
    sqlite3_finalize(version);
    if (rc != SQLITE_OK) {
        Failed(rc);
        return db_ != nullptr;
    }
    // Large pages for a store of large blobs (a folder's entries): fewer pages to log, copy
    // and read. Only a new file takes it; an existing one keeps its size.
    if (!Exec("PRAGMA page_size=65536") || !Exec("PRAGMA journal_mode=WAL") || !Exec("PRAGMA synchronous=NORMAL") || !Exec("PRAGMA mmap_size=268435456"))
        return db_ != nullptr;
    if (have != kVersion && !MakeSchema())
        return false;
    select_ = Prepare("SELECT entries FROM folder WHERE dir=?1");
    write_ =
        select_ ? Prepare("INSERT OR REPLACE INTO folder(dir, seen, count, entries) VALUES(?1, ?2, ?3, ?4)") : nullptr;
    erase_ = write_ ? Prepare("DELETE FROM folder WHERE dir=?1") : nullptr;
    return erase_ != nullptr;
}

// An empty store of this version, in place of whatever an older one held.
bool DocCache::MakeSchema()
{
    const std::string schema =
        "BEGIN IMMEDIATE; DROP TABLE IF EXISTS doc; DROP TABLE IF EXISTS folder; DROP TABLE IF EXISTS meta;"
        "CREATE TABLE folder(dir BLOB PRIMARY KEY NOT NULL, seen INTEGER, count INTEGER, entries BLOB);"
        "CREATE TABLE meta(key TEXT PRIMARY KEY, value INTEGER);"
        "PRAGMA user_version=" +
        std::to_string(kVersion) + "; COMMIT;";
    if (!Exec(schema.c_str())) {
        if (db_)
            sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
        Close();
        return false;
    }
    return true;
}

void DocCache::Close()
{
    for (sqlite3_stmt** stmt : {&select_, &write_, &erase_}) {
        sqlite3_finalize(*stmt);
        *stmt = nullptr;
    }
    if (db_)
        sqlite3_close_v2(db_);
    db_ = nullptr;
    foundLoaded_ = false;
    foundEntries_.clear();
}

void DocCache::Failed(int rc)
{
    Close();
    if (IsDamage(rc) && !movedAside_) {
        movedAside_ = true;
        MoveAside();
        Open();
        return;
    }
    offUntil_ = std::chrono::steady_clock::now() + kOffFor;
}

void DocCache::MoveAside()
{
    const std::string aside = file_ + ".corrupt";
    if (std::rename(file_.c_str(), aside.c_str()) != 0) {
        std::remove(file_.c_str());
    }
    // The old file's log would otherwise be replayed into the new one.
    std::rename((file_ + "-wal").c_str(), (aside + "-wal").c_str());
    std::remove((file_ + "-shm").c_str());
    if (warn_)
        warn_("docmanager: the document cache " + file_ + " was damaged; moved aside to " + aside + " and rebuilt");
}

bool DocCache::Exec(const char* sql)
{
    const int rc = sqlite3_exec(db_, sql, nullptr, nullptr, nullptr);
    if (rc == SQLITE_OK)
        return true;
    Failed(rc);
    return false;
}

sqlite3_stmt* DocCache::Prepare(const char* sql)
{
    sqlite3_stmt* stmt = nullptr;
    const int rc = sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &stmt, nullptr);
    if (rc == SQLITE_OK)
        return stmt;
    sqlite3_finalize(stmt);
    Failed(rc);
    return nullptr;
}

void DocCache::Abandon(int rc)
{
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    Failed(rc);
}

void DocCache::Folder(const std::string& dir, const IsCurrent& current, const TakeHit& hit)
{
    if (!Ready())
        return;
    BindBlob(select_, 1, dir);
    const int rc = sqlite3_step(select_);
    if (rc == SQLITE_ROW) {
        FolderEntries entries(Blob(select_, 0));
        FolderEntry stored;
        while (entries.Next(stored)) {
            Entry entry;
            if (current(stored.name, stored.id) && EntryOf(stored, std::string(), entry))
                hit(stored.name, std::move(entry));
        }
    }
    sqlite3_reset(select_);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        Failed(rc);
}

bool DocCache::LoadFolder(const std::string& dir, std::string& blob)
{
    BindBlob(select_, 1, dir);
    const int rc = sqlite3_step(select_);
    blob = rc == SQLITE_ROW ? std::string(Blob(select_, 0)) : std::string();
    sqlite3_reset(select_);
    return rc == SQLITE_ROW || rc == SQLITE_DONE;
}

bool DocCache::Find(const std::string& path, Entry& entry)
{
    std::string dir, name;
    SplitPath(path, dir, name);
    // What this listing kept comes first: it is the newer.
    if (const auto pending = pending_.find(dir); pending != pending_.end()) {
        FolderEntries entries(pending->second.blob);
        FolderEntry stored;
        bool found = false;
        while (entries.Next(stored))
            if (stored.name == name)
                found = EntryOf(stored, path, entry);
        if (found)
            return true;
    }
    if (!Ready())
        return false;
    if (!foundLoaded_ || dir != foundDir_) {
        foundEntries_.clear();
        foundLoaded_ = false;
        if (!LoadFolder(dir, foundBlob_)) {
            Failed(sqlite3_errcode(db_));
            return false;
        }
        foundDir_ = dir;
        foundLoaded_ = true;
        FolderEntries entries(foundBlob_);
        FolderEntry stored;
        while (entries.Next(stored))
            foundEntries_[stored.name] = stored;
    }
    const auto found = foundEntries_.find(name);
    return found != foundEntries_.end() && EntryOf(found->second, path, entry);
}

void DocCache::Store(const std::string& path, const FileIdentity& id, std::string_view packed)
{
    std::string dir, name;
    SplitPath(path, dir, name);
    AppendEntry(pending_[dir].blob, name, id, Today(), packed);
    ++pendingCount_;
}

void DocCache::Seen(const std::string& path)
{
    std::string dir, name;
    SplitPath(path, dir, name);
    if (pending_[dir].seen.insert(std::move(name)).second)
        ++pendingCount_;
}

void DocCache::Flush()
{
    if (pending_.empty())
        return;
    std::unordered_map<std::string, PendingFolder> pending;
    pending.swap(pending_);
    pendingCount_ = 0;
    foundLoaded_ = false;
    foundEntries_.clear();
    if (!Ready() || !Exec("BEGIN IMMEDIATE"))
        return;
    const int64_t today = Today();
    int64_t written = 0;
    for (const auto& [dir, folder] : pending)
        if (!WriteFolder(dir, folder, today, written))
            return Abandon(sqlite3_errcode(db_));
    const std::string count = "INSERT INTO meta VALUES('inserts', " + std::to_string(written) +
                              ") ON CONFLICT(key) DO UPDATE SET value = value + excluded.value";
    if (sqlite3_exec(db_, count.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        return Abandon(sqlite3_errcode(db_));
    Prune(today);
    if (!db_)
        return;
    if (sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        Abandon(sqlite3_errcode(db_));
}

// The folder's stored entries with the new ones in place of the old of the same name;
// entries unseen for kKeepDays go.
bool DocCache::WriteFolder(const std::string& dir, const PendingFolder& pending, int64_t today, int64_t& written)
{
    std::string old;
    if (!LoadFolder(dir, old))
        return false;
    std::unordered_map<std::string_view, FolderEntry> fresh;
    FolderEntry entry;
    size_t pendingEntries = 0;
    for (FolderEntries entries(pending.blob); entries.Next(entry); ++pendingEntries)
        fresh[entry.name] = entry;  // the last kept of a name wins
    written += int64_t(fresh.size());
    // A folder new to the store, its files each read once: the new entries are the row as
    // they stand, without a second copy of them.
    if (old.empty() && pendingEntries == fresh.size())
        return WriteRow(dir, today, int64_t(pendingEntries), pending.blob);
    std::string blob;
    blob.reserve(old.size() + pending.blob.size());
    int64_t count = 0;
    for (FolderEntries entries(old); entries.Next(entry);) {
        if (fresh.count(entry.name))
            continue;
        const int64_t seen =
            !pending.seen.empty() && pending.seen.count(std::string(entry.name)) ? today : entry.seenDay;
        if (seen < today - kKeepDays)
            continue;
        AppendEntry(blob, entry.name, entry.id, seen, entry.packed);
        ++count;
    }
    for (const auto& [name, kept] : fresh)
        AppendEntry(blob, name, kept.id, kept.seenDay, kept.packed);
    count += int64_t(fresh.size());
    return WriteRow(dir, today, count, blob);
}

// The row of a folder, or none when it has no entries left.
bool DocCache::WriteRow(const std::string& dir, int64_t today, int64_t count, std::string_view blob)
{
    sqlite3_stmt* st = count > 0 ? write_ : erase_;
    BindBlob(st, 1, dir);
    if (count > 0) {
        sqlite3_bind_int64(st, 2, today);
        sqlite3_bind_int64(st, 3, count);
        BindBlob(st, 4, blob);
    }
    const int rc = sqlite3_step(st);
    sqlite3_reset(st);
    sqlite3_clear_bindings(st);
    return rc == SQLITE_DONE;
}

// At most once a day, or after many new entries: folders not listed for kKeepDays go, then
// the least recently listed beyond kMaxEntries entries in all.
void DocCache::Prune(int64_t today)
{
    int64_t pruned = -1, inserts = 0;
    sqlite3_stmt* meta = nullptr;
    if (sqlite3_prepare_v2(db_, "SELECT key, value FROM meta", -1, &meta, nullptr) != SQLITE_OK) {
        sqlite3_finalize(meta);
        return Abandon(sqlite3_errcode(db_));
    }
    while (sqlite3_step(meta) == SQLITE_ROW) {
        const std::string key = reinterpret_cast<const char*>(sqlite3_column_text(meta, 0));
        if (key == "pruned")
            pruned = sqlite3_column_int64(meta, 1);
        else if (key == "inserts")
            inserts = sqlite3_column_int64(meta, 1);
    }
    sqlite3_finalize(meta);
    if (pruned == today && inserts < kPruneAfterInserts)
        return;
    const std::string sql =
        "DELETE FROM folder WHERE seen < " + std::to_string(today - kKeepDays) +
        ";"
        "DELETE FROM folder WHERE dir IN (SELECT dir FROM (SELECT dir, sum(count) OVER (ORDER BY seen DESC, dir) "
        "AS kept FROM folder) WHERE kept > " +
        std::to_string(kMaxEntries) +
        ");"
        "INSERT OR REPLACE INTO meta VALUES('pruned', " +
        std::to_string(today) +
        ");"
        "INSERT OR REPLACE INTO meta VALUES('inserts', 0);";
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        Abandon(sqlite3_errcode(db_));
}
