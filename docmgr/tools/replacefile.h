#pragma once
// Replacing a file whole: the new contents go to a temporary file beside it, which is
// flushed to disk and renamed over the old one. A reader sees the old file or the new
// one, never a mixture, and a failure (a full disk, a crash) leaves the old one in place.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace replacefile {

// The temporary file's name: `target` with this text, the writer's host and process and
// a unique ending appended. Listings that must not see such files skip names starting
// with the target's name and it.
inline constexpr std::string_view TEMP_INFIX = ".tmp-";

struct Options {
    // The new file's modification time (ns since the epoch), set once its contents are
    // closed, so that no file system stamps its own time over it afterwards. Where the
    // time cannot be had (a server keeping whole seconds), the whole second before it;
    // where the file then still reports a later time, nothing is replaced.
    int64_t mtimeNs = -1;
    // The new file's permissions, whatever the umask; -1 keeps the old file's.
    int mode = -1;
    // Owner and group to give the new file where the process may (-1: the creator's).
    int64_t uid = -1;
    int64_t gid = -1;
    // Some network file systems refuse to replace a file that is still open (SMB). When
    // the rename is refused, this is called so that the caller closes the target, and
    // the rename is tried again for a short while.
    std::function<void()> releaseTarget;
};

// A new file beside `target` under a name nobody else uses, written through its
// descriptor or by path, that takes the target's name only at the end: replacing the
// target, or only where no file has that name. Until then, and after any failure, the
// target is as it was, and the new file is removed when the object goes.
class SiblingFile {
public:
    explicit SiblingFile(std::string target) : target_(std::move(target)) {}
    ~SiblingFile();
    SiblingFile(const SiblingFile&) = delete;
    SiblingFile& operator=(const SiblingFile&) = delete;

    // Creates it, empty and open for writing; 0 or an errno value.
    int Create();
    const std::string& Path() const { return path_; }
    int Fd() const { return fd_; }
    // Appends all of `bytes` through the descriptor; 0 or an errno value.
    int Write(std::string_view bytes);
    // Flushes what its path now holds to disk, gives it the permissions, owner and date
    // of `options` and renames it over the target. 0 or an errno value.
    int ReplaceTarget(const Options& options);
    // Flushes it to disk with permissions `mode` and gives it the target's name where no
    // file has that name; EEXIST where one has. 0 or an errno value.
    int PublishAsNew(uint32_t mode);

private:
    int Finish(const Options& options);

    std::string target_;
    std::string path_;
    int fd_ = -1;
    bool published_ = false;
};

// Writes `contents` to a new file beside `target` and renames it over `target`.
// Returns 0 or an errno value; on failure no temporary file is left behind.
int Replace(const std::string& target, std::string_view contents, const Options& options = {});

// The same with contents made piece by piece: `fill` hands each piece to `put`, so that
// large contents need not be held whole, and returns false when it cannot make them
// (nothing is then replaced). A failed `put` makes the rest no-ops.
using PutPiece = std::function<void(std::string_view piece)>;
using Fill = std::function<bool(const PutPiece& put)>;
int ReplaceWith(const std::string& target, const Fill& fill, const Options& options = {});

// True when `name` is a temporary file of Replace for the file named `targetName` that
// nothing will use any more: its process on this host no longer runs, or, written on
// another host (a shared folder), it has not changed for an hour. `dir` holds it.
bool IsAbandonedTemp(const std::string& dir, const std::string& name, const std::string& targetName);

}  // namespace replacefile
