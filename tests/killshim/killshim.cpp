// Preloaded into a program under test: kills it with SIGKILL right after its N-th call
// that changes a file whose path holds a given text, so that tests can stop a writer at
// every step of a write. DOCMGR_KILL_AFTER=N, DOCMGR_KILL_MATCH=text.
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool Matches(const char* path)
{
    const char* match = getenv("DOCMGR_KILL_MATCH");
    return path && match && *match && strstr(path, match);
}

bool FdMatches(int fd)
{
    char link[64], path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(link, path, sizeof path - 1);
    if (n <= 0)
        return false;
    path[n] = '\0';
    return Matches(path);
}

// Counts a call that touched a matching file, and ends the process on the N-th.
void Counted(bool matched)
{
    static int calls = 0;
    const char* after = getenv("DOCMGR_KILL_AFTER");
    if (matched && after && ++calls == atoi(after))
        raise(SIGKILL);
}

template <typename Fn>
Fn Next(const char* name)
{
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

ssize_t write(int fd, const void* buffer, size_t n)
{
    static const auto real = Next<ssize_t (*)(int, const void*, size_t)>("write");
    const ssize_t result = real(fd, buffer, n);
    Counted(FdMatches(fd));
    return result;
}

ssize_t pwrite(int fd, const void* buffer, size_t n, off_t offset)
{
    static const auto real = Next<ssize_t (*)(int, const void*, size_t, off_t)>("pwrite");
    const ssize_t result = real(fd, buffer, n, offset);
    Counted(FdMatches(fd));
    return result;
}

ssize_t pwrite64(int fd, const void* buffer, size_t n, off_t offset)
{
    return pwrite(fd, buffer, n, offset);
}

int ftruncate(int fd, off_t length)
{
    static const auto real = Next<int (*)(int, off_t)>("ftruncate");
    const int result = real(fd, length);
    Counted(FdMatches(fd));
    return result;
}

int fsync(int fd)
{
    static const auto real = Next<int (*)(int)>("fsync");
    const int result = real(fd);
    Counted(FdMatches(fd));
    return result;
}

int futimens(int fd, const struct timespec times[2])
{
    static const auto real = Next<int (*)(int, const struct timespec*)>("futimens");
    const int result = real(fd, times);
    Counted(FdMatches(fd));
    return result;
}

int utimensat(int dirfd, const char* path, const struct timespec times[2], int flags)
{
    static const auto real = Next<int (*)(int, const char*, const struct timespec*, int)>("utimensat");
    const int result = real(dirfd, path, times, flags);
    Counted(Matches(path));
    return result;
}

int rename(const char* from, const char* to)
{
    static const auto real = Next<int (*)(const char*, const char*)>("rename");
    const int result = real(from, to);
    Counted(Matches(to));
    return result;
}

}  // extern "C"
