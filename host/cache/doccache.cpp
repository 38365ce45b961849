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

// Bumped whenever a reader gives other information for the same file: the store is then
// emptied, so no row keeps what an older reader made of it.
constexpr int kVersion = 2;
constexpr int kBusyMs = 50;
constexpr int64_t kKeepDays = 90;
constexpr int64_t kMaxEntries = 200000;
constexpr int64_t kPruneAfterInserts = 20000;
// Frames of the log (pages) after which a commit folds it into the database file.
constexpr int kFoldAtFrames = 256;
constexpr auto kOffFor = std::chrono::seconds(60);

constexpr const char* kFields = "name, dev, ino, size, mtime, ctime, seen, reading";

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

// The identity columns of kFields.
FileIdentity StoredIdentity(sqlite3_stmt* stmt)
{
    FileIdentity id;
    id.dev = uint64_t(sqlite3_column_int64(stmt, 1));
    id.ino = uint64_t(sqlite3_column_int64(stmt, 2));
    id.size = sqlite3_column_int64(stmt, 3);
    id.mtimeNs = sqlite3_column_int64(stmt, 4);
    id.ctimeNs = sqlite3_column_int64(stmt, 5);
    return id;
}

// The columns of kFields (name excluded); false for a reading of another form.
bool EntryOf(sqlite3_stmt* stmt, const std::string& path, DocCache::Entry& e)
{
    e.id = StoredIdentity(stmt);
    e.seenDay = sqlite3_column_int64(stmt, 6);
    if (!UnpackReading(Blob(stmt, 7), e.reading))
        return false;
    if (e.reading.info)
        e.reading.info->entry = path;
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
    // The base directory specification allows only absolute paths here.
    const char* xdg = std::getenv("XDG_CACHE_HOME");
    if (xdg && xdg[0] == '/')
        return std::string(xdg) + "/docmanager/docinfo.sqlite";
    const char* home = std::getenv("HOME");
    if (home && home[0] == '/')
        return std::string(home) + "/.cache/docmanager/docinfo.sqlite";
    return {};
}

size_t DocCache::Pending() const
{
    const std::lock_guard lock(mutex_);
    return inTransaction_ ? inserted_ + 1 : 0;
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

bool DocCache::Open()
{
    // A private folder and file: the store holds titles and authors of every document read.
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
    if (!Exec("PRAGMA journal_mode=WAL") || !Exec("PRAGMA synchronous=NORMAL") || !Exec("PRAGMA mmap_size=268435456") ||
        !Exec("PRAGMA cache_size=-16384"))
        return db_ != nullptr;
    if (have != kVersion) {
        const std::string schema =
            std::string("BEGIN IMMEDIATE; DROP TABLE IF EXISTS doc; DROP TABLE IF EXISTS meta;"
                        "CREATE TABLE doc(dir BLOB NOT NULL, ") +
            "name BLOB NOT NULL, dev INTEGER, ino INTEGER, size INTEGER, mtime INTEGER, ctime INTEGER,"
            " seen INTEGER, reading BLOB, PRIMARY KEY(dir, name)) WITHOUT ROWID;"
            "CREATE TABLE meta(key TEXT PRIMARY KEY, value INTEGER);"
            "PRAGMA user_version=" +
            std::to_string(kVersion) + "; COMMIT;";
        if (!Exec(schema.c_str())) {
            if (db_)
                sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
            Close();
            return false;
        }
    }
    const std::string select = std::string("SELECT ") + kFields + " FROM doc WHERE dir=?1";
    const std::string one = select + " AND name=?2";
    const std::string insert =
        std::string("INSERT OR REPLACE INTO doc(dir, ") + kFields + ") VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)";
    folder_ = Prepare(select.c_str());
    one_ = folder_ ? Prepare(one.c_str()) : nullptr;
    insert_ = one_ ? Prepare(insert.c_str()) : nullptr;
    seen_stmt_ = insert_ ? Prepare("UPDATE doc SET seen=?3 WHERE dir=?1 AND name=?2") : nullptr;
    return seen_stmt_ != nullptr;
}

void DocCache::Close()
{
    inTransaction_ = false;
    for (sqlite3_stmt** stmt : {&folder_, &one_, &insert_, &seen_stmt_}) {
        sqlite3_finalize(*stmt);
        *stmt = nullptr;
    }
    if (db_)
        sqlite3_close_v2(db_);
    db_ = nullptr;
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

void DocCache::Folder(const std::string& dir, const IsCurrent& current, const TakeHit& hit)
{
    const std::lock_guard lock(mutex_);
    if (!Ready())
        return;
    BindBlob(folder_, 1, dir);
    int rc;
    while ((rc = sqlite3_step(folder_)) == SQLITE_ROW) {
        const void* data = sqlite3_column_blob(folder_, 0);
        const std::string_view name(data ? static_cast<const char*>(data) : "",
                                    size_t(sqlite3_column_bytes(folder_, 0)));
        Entry entry;
        if (current(name, StoredIdentity(folder_)) && EntryOf(folder_, std::string(), entry))
            hit(name, std::move(entry));
    }
    sqlite3_reset(folder_);
    if (rc != SQLITE_DONE)
        Failed(rc);
}

bool DocCache::Find(const std::string& path, Entry& entry)
{
    const std::lock_guard lock(mutex_);
    if (!Ready())
        return false;
    std::string dir, name;
    SplitPath(path, dir, name);
    BindBlob(one_, 1, dir);
    BindBlob(one_, 2, name);
    const int rc = sqlite3_step(one_);
    const bool found = rc == SQLITE_ROW && EntryOf(one_, path, entry);
    sqlite3_reset(one_);
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        Failed(rc);
    return found;
}

// Writes go into one transaction, begun with the first and committed by Flush, so that a
// listing holds no copies of what it wrote and pays for one commit.
bool DocCache::Begin()
{
    if (inTransaction_)
        return true;
    if (!Ready() || !Exec("BEGIN IMMEDIATE"))
        return false;
    inTransaction_ = true;
    inserted_ = 0;
    return true;
}

void DocCache::Store(const std::string& path, const FileIdentity& id, std::string_view packed)
{
    const std::lock_guard lock(mutex_);
    if (!Begin())
        return;
    std::string dir, name;
    SplitPath(path, dir, name);
    sqlite3_stmt* st = insert_;
    BindBlob(st, 1, dir);
    BindBlob(st, 2, name);
    sqlite3_bind_int64(st, 3, int64_t(id.dev));
    sqlite3_bind_int64(st, 4, int64_t(id.ino));
    sqlite3_bind_int64(st, 5, id.size);
    sqlite3_bind_int64(st, 6, id.mtimeNs);
    sqlite3_bind_int64(st, 7, id.ctimeNs);
    sqlite3_bind_int64(st, 8, Today());
    BindBlob(st, 9, packed);
    const int rc = sqlite3_step(st);
    sqlite3_reset(st);
    sqlite3_clear_bindings(st);
    if (rc != SQLITE_DONE)
        Abandon(rc);
    else
        ++inserted_;
}

void DocCache::Seen(const std::string& path)
{
    const std::lock_guard lock(mutex_);
    if (!Begin())
        return;
    std::string dir, name;
    SplitPath(path, dir, name);
    BindBlob(seen_stmt_, 1, dir);
    BindBlob(seen_stmt_, 2, name);
    sqlite3_bind_int64(seen_stmt_, 3, Today());
    const int rc = sqlite3_step(seen_stmt_);
    sqlite3_reset(seen_stmt_);
    if (rc != SQLITE_DONE)
        Abandon(rc);
}

void DocCache::Abandon(int rc)
{
    sqlite3_exec(db_, "ROLLBACK", nullptr, nullptr, nullptr);
    inTransaction_ = false;
    Failed(rc);
}

void DocCache::Flush()
{
    const std::lock_guard lock(mutex_);
    if (!inTransaction_ || !db_)
        return;
    const std::string count = "INSERT INTO meta VALUES('inserts', " + std::to_string(inserted_) +
                              ") ON CONFLICT(key) DO UPDATE SET value = value + excluded.value";
    if (sqlite3_exec(db_, count.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        return Abandon(sqlite3_errcode(db_));
    Prune(Today());
    if (!db_)
        return;
    if (sqlite3_exec(db_, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        return Abandon(sqlite3_errcode(db_));
    inTransaction_ = false;
}

// At most once a day, or after many inserts: files not seen for kKeepDays go, then the
// least recently seen beyond kMaxEntries.
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
    const std::string sql = "DELETE FROM doc WHERE seen < " + std::to_string(today - kKeepDays) +
                            ";"
                            "DELETE FROM doc WHERE (dir, name) IN (SELECT dir, name FROM doc ORDER BY seen LIMIT "
                            "max(0, (SELECT count(*) FROM doc) - " +
                            std::to_string(kMaxEntries) +
                            "));"
                            "INSERT OR REPLACE INTO meta VALUES('pruned', " +
                            std::to_string(today) +
                            ");"
                            "INSERT OR REPLACE INTO meta VALUES('inserts', 0);";
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        Abandon(sqlite3_errcode(db_));
}
