#pragma once
// File system helpers over std::filesystem, with error codes instead of exceptions.
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace fsutil {

// One entry of a directory listing.
struct DirItem {
    std::string name;     // last component, UTF-8
    uint64_t size = 0;    // bytes (files only)
    int64_t mtimeNs = 0;  // modification time, ns since the epoch
    int64_t ctimeNs = 0;  // status change time: a file moved or copied in with an old
                          // modification time still shows here when it arrived
    uint32_t mode = 0;    // of the file a link leads to
    uint32_t uid = 0;
    uint32_t gid = 0;
    bool isLink = false;  // the entry itself is a symbolic link
    uint64_t dev = 0;     // of the file a link leads to, with ino: which file it is
    uint64_t ino = 0;
};

enum class Kind { Files, Dirs };

// What a listing saw besides its items.
struct ListStatus {
    int error = 0;       // errno when the directory could not be opened, else 0
    size_t entries = 0;  // every entry of the directory, whatever its kind or name
};

// Entries of `dir` of the given kind whose names match `pattern` (";"-separated
// alternatives, case-insensitive), in the order the file system gives them.
// An unreadable or missing directory yields an empty list (and `status->error`).
// `subdirs`, when given, gets every subdirectory in the same pass, whatever its name.
std::vector<DirItem> List(const std::string& dir, std::string_view pattern, Kind kind, ListStatus* status = nullptr,
                          std::vector<DirItem>* subdirs = nullptr);

bool IsDirectory(const std::string& path);
bool IsFile(const std::string& path);
// A regular file itself, not a link to one.
bool IsPlainFile(const std::string& path);
bool Exists(const std::string& path);
// Size and modification time; false when the file cannot be stat'ed.
bool Stat(const std::string& path, uint64_t& size, int64_t& mtimeNs);
uint64_t FileSize(const std::string& path);

// Absolute, lexically normal form without a trailing delimiter (except the root).
std::string Absolute(const std::string& path);
std::string FileName(const std::string& path);
// Directory part, absolute, without trailing delimiter.
std::string DirName(const std::string& path);
std::string Join(const std::string& dir, const std::string& name);
// True for a folder of a file system whose clients keep file times for a while (SMB,
// NFS, FUSE): what a listing sees may be that much older than what the server has.
bool CachesFileTimes(const std::string& dir);
// Device and inode of a directory, to recognise link cycles.
bool Identity(const std::string& path, uint64_t& dev, uint64_t& ino);

// Changes the process's current directory and restores it when it goes out of scope.
class CurrentDirGuard {
public:
    explicit CurrentDirGuard(const std::string& dir);
    ~CurrentDirGuard();
    CurrentDirGuard(const CurrentDirGuard&) = delete;
    CurrentDirGuard& operator=(const CurrentDirGuard&) = delete;
    bool Entered() const { return entered_; }

private:
    std::filesystem::path saved_;
    bool entered_ = false;
};

// File operations that never overwrite: each fails when the target exists.
// They return 0 on success, else an errno value.
int CopyFile(const std::string& source, const std::string& target);
int MoveFile(const std::string& source, const std::string& target);  // rename, no replace
int Remove(const std::string& path);
int MakeDir(const std::string& path);
// Gives the finished `file` the name `target` where no file has it (EEXIST where one has);
// `file` goes.
int PublishNoReplace(const std::string& file, const std::string& target);

}  // namespace fsutil
