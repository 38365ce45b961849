#include "docmgr/tools/replacefile.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace replacefile {
namespace {

// Opens a file of a name nobody else uses beside `target`; -1 with errno on failure.
int OpenUnique(const std::string& target, std::string& tempPath)
{
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto tick = std::chrono::steady_clock::now().time_since_epoch().count();
        tempPath = target + std::string(TEMP_INFIX) + std::to_string(getpid()) + "-"
            + std::to_string(counter++) + "-" + std::to_string(tick & 0xFFFFF);
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

}  // namespace

int Replace(const std::string& target, std::string_view contents, int64_t mtimeNs)
{
    return ReplaceWith(target, [contents](const PutPiece& put) { put(contents); }, mtimeNs);
}

int ReplaceWith(const std::string& target, const std::function<void(const PutPiece& put)>& fill,
                int64_t mtimeNs)
{
    std::string temp;
    const int fd = OpenUnique(target, temp);
    if (fd < 0)
        return errno;
    int error = 0;
    fill([fd, &error](std::string_view piece) {
        if (!error)
            error = WriteAll(fd, piece);
    });
    struct stat old {};
    if (!error && stat(target.c_str(), &old) == 0 && fchmod(fd, old.st_mode & 07777) != 0)
        error = errno;
    if (!error && mtimeNs >= 0) {
        const struct timespec times[2] = {{0, UTIME_OMIT},
                                          {time_t(mtimeNs / 1000000000), long(mtimeNs % 1000000000)}};
        if (futimens(fd, times) != 0)
            error = errno;
    }
    // Some file systems cannot sync (EINVAL); their data is as safe as they make it.
    if (!error && fsync(fd) != 0 && errno != EINVAL)
        error = errno;
    if (close(fd) != 0 && !error)
        error = errno;
    if (!error && rename(temp.c_str(), target.c_str()) != 0)
        error = errno;
    if (error)
        unlink(temp.c_str());
    return error;
}

bool IsAbandonedTemp(const std::string& name, const std::string& targetName)
{
    const std::string prefix = targetName + std::string(TEMP_INFIX);
    if (name.compare(0, prefix.size(), prefix) != 0)
        return false;
    long pid = 0;
    size_t at = prefix.size();
    for (; at < name.size() && name[at] >= '0' && name[at] <= '9' && pid < 1L << 30; ++at)
        pid = pid * 10 + (name[at] - '0');
    if (at == prefix.size() || at >= name.size() || name[at] != '-' || pid <= 0)
        return false;
    return kill(pid_t(pid), 0) != 0 && errno == ESRCH;
}

}  // namespace replacefile
