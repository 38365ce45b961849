#pragma once
// What says a file is still the one that was read: a new inode, size or time is another.
#include <cstdint>
#include <string>

struct FileIdentity {
    uint64_t dev = 0, ino = 0;
    int64_t size = 0, mtimeNs = 0, ctimeNs = 0;
    // When it was taken (the clock, not part of the identity): a file changed within the
    // file system's clock tick before it may change again keeping all of the above.
    int64_t takenNs = 0;
    friend bool operator==(const FileIdentity& a, const FileIdentity& b)
    {
        return a.dev == b.dev && a.ino == b.ino && a.size == b.size && a.mtimeNs == b.mtimeNs && a.ctimeNs == b.ctimeNs;
    }
};

// The identity of the file `path` leads to (links followed, as the readers do); false
// when it cannot be stat'ed.
bool IdentityOf(const std::string& path, FileIdentity& id);
// The same for `name` in the folder open as `dirFd` (a short walk for the many files of
// one folder).
bool IdentityAt(int dirFd, const char* name, FileIdentity& id);
// The clock now, as `takenNs` holds it.
int64_t ClockNowNs();
