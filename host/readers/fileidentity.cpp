#include "host/readers/fileidentity.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

namespace {

void Fill(const struct stat& st, FileIdentity& id)
{
    id.dev = uint64_t(st.st_dev);
    id.ino = uint64_t(st.st_ino);
    id.size = int64_t(st.st_size);
    id.mtimeNs = int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
    id.ctimeNs = int64_t(st.st_ctim.tv_sec) * 1000000000 + st.st_ctim.tv_nsec;
    id.takenNs = ClockNowNs();
}

}  // namespace

int64_t ClockNowNs()
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return int64_t(now.tv_sec) * 1000000000 + now.tv_nsec;
}

bool IdentityOf(const std::string& path, FileIdentity& id)
{
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0)
        return false;
    Fill(st, id);
    return true;
}

bool IdentityAt(int dirFd, const char* name, FileIdentity& id)
{
    struct stat st {};
    if (::fstatat(dirFd, name, &st, 0) != 0)
        return false;
    Fill(st, id);
    return true;
}
