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

// Counts a call that touched a matching file, and ends the process on the N-th; gives
// back the call's result otherwise.
ssize_t Counted(bool matched, ssize_t result)
{
    static int calls = 0;
    const char* after = getenv("DOCMGR_KILL_AFTER");
    if (matched && after && ++calls == atoi(after))
        raise(SIGKILL);
    return result;
}

template <typename Fn>
Fn Next(const char* name)
{
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// Each counts its call once the real one is done, so that the process dies with it done.
extern "C" {

ssize_t write(int fd, const void* buffer, size_t n)
{
    static const auto real = Next<decltype(&write)>("write");
    return Counted(FdMatches(fd), real(fd, buffer, n));
}

ssize_t pwrite(int fd, const void* buffer, size_t n, off_t offset)
{
    static const auto real = Next<decltype(&pwrite)>("pwrite");
    return Counted(FdMatches(fd), real(fd, buffer, n, offset));
}

ssize_t pwrite64(int fd, const void* buffer, size_t n, off_t offset)
{
    return pwrite(fd, buffer, n, offset);
}

int ftruncate(int fd, off_t length)
{
    static const auto real = Next<decltype(&ftruncate)>("ftruncate");
    return int(Counted(FdMatches(fd), real(fd, length)));
}

int fsync(int fd)
{
    static const auto real = Next<decltype(&fsync)>("fsync");
    return int(Counted(FdMatches(fd), real(fd)));
}

int futimens(int fd, const struct timespec times[2])
{
    static const auto real = Next<decltype(&futimens)>("futimens");
    return int(Counted(FdMatches(fd), real(fd, times)));
}

int utimensat(int dirfd, const char* path, const struct timespec times[2], int flags)
{
    static const auto real = Next<decltype(&utimensat)>("utimensat");
    return int(Counted(Matches(path), real(dirfd, path, times, flags)));
}

int rename(const char* from, const char* to)
{
    static const auto real = Next<decltype(&rename)>("rename");
    return int(Counted(Matches(to), real(from, to)));
}

}  // extern "C"
