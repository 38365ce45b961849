#include "docmgr/tools/replacefile.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "docmgr/tools/fsutil.h"

namespace replacefile {
namespace {

constexpr int64_t NS = 1000000000;
// A temporary file of another host is left alone while its writer may still be busy.
constexpr int64_t FOREIGN_TEMP_AGE_NS = 3600 * NS;

// The host's name as it may stand in a file name: letters, digits, '.' and '_' only
// ('-' separates the parts of the name).
const std::string& HostTag()
{
    static const std::string tag = [] {
        char host[256] = {};
        if (gethostname(host, sizeof host - 1) != 0 || !host[0])
            return std::string("host");
        std::string text(host);
        for (char& c : text)
            if (!((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.'))
                c = '_';
        return text;
    }();
    return tag;
}

// Opens a file of a name nobody else uses beside `target`; -1 with errno on failure.
int OpenUnique(const std::string& target, std::string& tempPath)
{
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
        tempPath = target + std::string(TEMP_INFIX) + HostTag() + "-" + std::to_string(getpid()) + "-" +
                   std::to_string(counter++) + "-" + std::to_string(tick & 0xFFFFF);
        const int fd = open(tempPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST)
            return fd;
    }
    return -1;
}

int WriteAll(int fd, std::string_view contents)
{
    for (size_t done = 0; done < contents.size();) {
        const ssize_t put = write(fd, contents.data() + done, contents.size() - done);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return put < 0 ? errno : ENOSPC;
        done += size_t(put);
    }
    return 0;
}

int SetAccess(int fd, const std::string& target, const Options& options)
{
    if (options.uid >= 0 || options.gid >= 0) {
        // Only the administrator may give a file away; a group works where the writer
        // belongs to it. Either way the file stays usable when it cannot be had.
        const uid_t uid = geteuid() == 0 && options.uid >= 0 ? uid_t(options.uid) : uid_t(-1);
        if (fchown(fd, uid, options.gid >= 0 ? gid_t(options.gid) : gid_t(-1)) != 0 && uid != uid_t(-1))
            (void)!fchown(fd, uid_t(-1), options.gid >= 0 ? gid_t(options.gid) : gid_t(-1));
    }
    struct stat old {};
    mode_t mode = 0;
    if (options.mode >= 0)
        mode = mode_t(options.mode);
    else if (stat(target.c_str(), &old) == 0)
        mode = old.st_mode & 07777;
    else
        return 0;  // a new file: the creator's umask decides, as for any file
    return fchmod(fd, mode) == 0 ? 0 : errno;
}

int64_t MtimeNsOf(const std::string& path)
{
    struct stat st {};
    if (stat(path.c_str(), &st) != 0)
        return -1;
    return int64_t(st.st_mtim.tv_sec) * NS + st.st_mtim.tv_nsec;
}

// Both times are given: some FUSE file systems (smbnetfs) ignore a call that leaves one
// of them as it is, and say it succeeded.
int SetMtimeByPath(const std::string& path, int64_t mtimeNs)
{
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    const struct timespec times[2] = {now, {time_t(mtimeNs / NS), long(mtimeNs % NS)}};
    return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0 ? 0 : errno;
}

// Dates the closed file back; a file system that keeps whole seconds, or stamps the time
// of its own clock, must not leave it dated later than asked.
int DateBack(const std::string& path, int64_t mtimeNs)
{
    for (const int64_t wanted : {mtimeNs, mtimeNs - mtimeNs % NS}) {
        if (const int error = SetMtimeByPath(path, wanted))
            return error;
        const int64_t got = MtimeNsOf(path);
        if (got >= 0 && got <= mtimeNs)
            return 0;
    }
    return ETIME;
}

bool IsRefusedWhileOpen(int error)
{
    return error == EBUSY || error == EEXIST || error == EACCES || error == EPERM || error == ETXTBSY;
}

int RenameOver(const std::string& temp, const std::string& target, const Options& options)
{
    if (rename(temp.c_str(), target.c_str()) == 0)
        return 0;
    int error = errno;
    if (!IsRefusedWhileOpen(error) || !options.releaseTarget)
        return error;
    options.releaseTarget();
    // Another desktop may still hold the file open for a moment.
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (rename(temp.c_str(), target.c_str()) == 0)
            return 0;
        error = errno;
        if (!IsRefusedWhileOpen(error))
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(20 * (attempt + 1)));
    }
    return error;
}

}  // namespace

SiblingFile::~SiblingFile()
{
    if (fd_ >= 0)
        close(fd_);
    if (!path_.empty() && !published_)
        unlink(path_.c_str());
}

int SiblingFile::Create()
{
    fd_ = OpenUnique(target_, path_);
    if (fd_ < 0) {
        path_.clear();
        return errno;
    }
    return 0;
}

int SiblingFile::Write(std::string_view bytes)
{
    return fd_ < 0 ? EBADF : WriteAll(fd_, bytes);
}

// A library may have replaced the file under its name (libzip does): what is flushed and
// given its permissions is what the path holds now.
int SiblingFile::Finish(const Options& options)
{
    if (fd_ >= 0 && close(fd_) != 0) {
        fd_ = -1;
        return errno;
    }
    fd_ = -1;
    const int fd = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    int error = SetAccess(fd, target_, options);
    // Some file systems cannot sync (EINVAL); their data is as safe as they make it.
    if (!error && fsync(fd) != 0 && errno != EINVAL)
        error = errno;
    if (close(fd) != 0 && !error)
        error = errno;
    if (!error && options.mtimeNs >= 0)
        error = DateBack(path_, options.mtimeNs);
    return error;
}

int SiblingFile::ReplaceTarget(const Options& options)
{
    if (path_.empty())
        return EBADF;
    int error = Finish(options);
    if (!error)
        error = RenameOver(path_, target_, options);
    published_ = !error;
    return error;
}

int SiblingFile::PublishAsNew(uint32_t mode)
{
    if (path_.empty())
        return EBADF;
    Options options;
    options.mode = int(mode);
    int error = Finish(options);
    if (!error)
        error = fsutil::PublishNoReplace(path_, target_);
    published_ = !error;
    return error;
}

int Replace(const std::string& target, std::string_view contents, const Options& options)
{
    const auto fill = [contents](const PutPiece& put) {
        put(contents);
        return true;
    };
    return ReplaceWith(target, fill, options);
}

int ReplaceWith(const std::string& target, const Fill& fill, const Options& options)
{
    SiblingFile file(target);
    if (const int error = file.Create())
        return error;
    int error = 0;
    const bool made = fill([&file, &error](std::string_view piece) {
        if (!error)
            error = file.Write(piece);
    });
    if (!made && !error)
        error = EIO;
    return error ? error : file.ReplaceTarget(options);
}

bool IsAbandonedTemp(const std::string& dir, const std::string& name, const std::string& targetName)
{
    const std::string prefix = targetName + std::string(TEMP_INFIX);
    if (name.compare(0, prefix.size(), prefix) != 0)
        return false;
    // host-pid-counter-tick; the host may be missing (names of earlier versions).
    std::string_view rest = std::string_view(name).substr(prefix.size());
    size_t dashes[3];
    size_t found = 0;
    for (size_t at = rest.size(); at-- > 0 && found < 3;)
        if (rest[at] == '-')
            dashes[found++] = at;
    if (found < 2)
        return false;
    const bool withHost = found == 3;
    const std::string_view host = withHost ? rest.substr(0, dashes[2]) : std::string_view();
    const std::string_view pidText =
        rest.substr(withHost ? dashes[2] + 1 : 0, dashes[1] - (withHost ? dashes[2] + 1 : 0));
    if (!withHost || host == HostTag()) {
        long pid = 0;
        for (char c : pidText) {
            if (c < '0' || c > '9' || pid > 1L << 30)
                return false;
            pid = pid * 10 + (c - '0');
        }
        return pid > 0 && kill(pid_t(pid), 0) != 0 && errno == ESRCH;
    }
    const int64_t changed = MtimeNsOf(dir + "/" + name);
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    return changed >= 0 && int64_t(now.tv_sec) * NS + now.tv_nsec - changed > FOREIGN_TEMP_AGE_NS;
}

}  // namespace replacefile
