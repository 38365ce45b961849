#include "docmgr/tools/fsutil.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "docmgr/tools/wildcard.h"

namespace fs = std::filesystem;

namespace fsutil {
namespace {

int64_t MtimeNs(const struct stat& st)
{
    return int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
}

int64_t CtimeNs(const struct stat& st)
{
    return int64_t(st.st_ctim.tv_sec) * 1000000000 + st.st_ctim.tv_nsec;
}

bool IsLinkEntry(int dirFd, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_LNK;
    struct stat st {};
    return fstatat(dirFd, entry.d_name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(st.st_mode);
}

}  // namespace

std::vector<DirItem> List(const std::string& dir, std::string_view pattern, Kind kind, ListStatus* status,
                          std::vector<DirItem>* subdirs)
{
    std::vector<DirItem> items;
    ListStatus seen;
    DIR* handle = opendir(dir.c_str());
    if (!handle) {
        seen.error = errno;
        if (status)
            *status = seen;
        return items;
    }
    const int dirFd = dirfd(handle);
    const bool matchAll = pattern == "*";
    const wildcard::PatternList patterns(pattern, ';', true);
    while (const dirent* entry = readdir(handle)) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        ++seen.entries;
        bool wanted = matchAll || patterns.Matches(name);
        bool wantedDir = subdirs != nullptr;
        // What the directory tells of an entry's kind spares the stat of every file when
        // only the folders are wanted (a link is followed, so it is always stated).
        if (entry->d_type != DT_UNKNOWN && entry->d_type != DT_LNK) {
            const bool dirType = entry->d_type == DT_DIR;
            wanted = wanted && (kind == Kind::Dirs) == dirType;
            wantedDir = wantedDir && dirType;
        }
        if (!wanted && !wantedDir)
            continue;
        struct stat st {};
        if (fstatat(dirFd, entry->d_name, &st, 0) != 0)
            continue;  // vanished meanwhile, or a dangling link
        const bool isDir = S_ISDIR(st.st_mode);
        wanted = wanted && (kind == Kind::Dirs ? isDir : S_ISREG(st.st_mode));
        wantedDir = wantedDir && isDir;
        if (!wanted && !wantedDir)
            continue;
        DirItem item{std::string(name),    uint64_t(st.st_size), MtimeNs(st),         CtimeNs(st),
                     uint32_t(st.st_mode), uint32_t(st.st_uid),  uint32_t(st.st_gid), IsLinkEntry(dirFd, *entry),
                     uint64_t(st.st_dev),  uint64_t(st.st_ino)};
        if (wantedDir)
            subdirs->push_back(item);
        if (wanted)
            items.push_back(std::move(item));
    }
    closedir(handle);
    if (status)
        *status = seen;
    return items;
}

bool IsDirectory(const std::string& path)
{
    struct stat st {};
    return !path.empty() && stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool IsFile(const std::string& path)
{
    struct stat st {};
    return !path.empty() && stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool IsPlainFile(const std::string& path)
{
    struct stat st {};
    return !path.empty() && lstat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool Exists(const std::string& path)
{
    struct stat st {};
    return !path.empty() && lstat(path.c_str(), &st) == 0;
}

bool Stat(const std::string& path, uint64_t& size, int64_t& mtimeNs)
{
    struct stat st {};
    if (path.empty() || stat(path.c_str(), &st) != 0)
        return false;
    size = uint64_t(st.st_size);
    mtimeNs = MtimeNs(st);
    return true;
}

uint64_t FileSize(const std::string& path)
{
    uint64_t size = 0;
    int64_t mtime = 0;
    return Stat(path, size, mtime) ? size : 0;
}

namespace {

// Already absolute and lexically normal: no ".", ".." or empty segment, no trailing "/".
// Every row's path is, so most calls need no work.
bool IsNormalAbsolute(std::string_view path)
{
    if (path.empty() || path.front() != '/')
        return false;
    if (path.size() == 1)
        return true;
    if (path.back() == '/')
        return false;
    for (size_t start = 1; start <= path.size();) {
        const size_t end = std::min(path.find('/', start), path.size());
        const std::string_view segment = path.substr(start, end - start);
        if (segment.empty() || segment == "." || segment == "..")
            return false;
        start = end + 1;
    }
    return true;
}

}  // namespace

std::string Absolute(const std::string& path)
{
    if (IsNormalAbsolute(path))
        return path;
    std::error_code error;
    fs::path absolute = fs::absolute(fs::path(path), error);
    if (error)
        absolute = fs::path(path);
    std::string text = absolute.lexically_normal().string();
    while (text.size() > 1 && text.back() == '/')
        text.pop_back();
    return text;
}

std::string FileName(const std::string& path)
{
    const size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string DirName(const std::string& path)
{
    const std::string absolute = Absolute(path);
    const size_t slash = absolute.find_last_of('/');
    if (slash == std::string::npos)
        return {};
    return slash == 0 ? std::string("/") : absolute.substr(0, slash);
}

std::string Join(const std::string& dir, const std::string& name)
{
    if (dir.empty())
        return name;
    return dir.back() == '/' ? dir + name : dir + "/" + name;
}

bool CachesFileTimes(const std::string& dir)
{
    constexpr unsigned long FUSE = 0x65735546, SMB2 = 0xFE534D42, CIFS = 0xFF534D42, SMB = 0x517B, NFS = 0x6969;
    struct statfs fs {};
    if (statfs(dir.c_str(), &fs) != 0)
        return false;
    const auto type = static_cast<unsigned long>(fs.f_type);
    return type == FUSE || type == SMB2 || type == CIFS || type == SMB || type == NFS;
}

bool Identity(const std::string& path, uint64_t& dev, uint64_t& ino)
{
    struct stat st {};
    if (stat(path.c_str(), &st) != 0)
        return false;
    dev = uint64_t(st.st_dev);
    ino = uint64_t(st.st_ino);
    return true;
}

CurrentDirGuard::CurrentDirGuard(const std::string& dir)
{
    std::error_code error;
    saved_ = fs::current_path(error);
    if (!error)
        entered_ = chdir(dir.c_str()) == 0;
}

CurrentDirGuard::~CurrentDirGuard()
{
    if (entered_ && chdir(saved_.c_str()) != 0)
        perror("docmgr: cannot restore the current directory");
}

}  // namespace fsutil
