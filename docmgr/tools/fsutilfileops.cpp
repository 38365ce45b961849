// Copy, move, delete and make-directory of fsutil, which never overwrite an existing target.
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/replacefile.h"

#ifndef RENAME_NOREPLACE
#define RENAME_NOREPLACE (1 << 0)
#endif

namespace fsutil {
namespace {

// rename that fails with EEXIST when the target exists; EINVAL where the file system
// does not support it.
int RenameNoReplace(const std::string& source, const std::string& target)
{
    if (syscall(SYS_renameat2, AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    return errno;
}

int CopyData(int in, int out)
{
    char buffer[1 << 16];
    for (;;) {
        const ssize_t got = read(in, buffer, sizeof buffer);
        if (got == 0)
            return 0;
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        for (ssize_t done = 0; done < got;) {
            const ssize_t put = write(out, buffer + done, size_t(got - done));
            if (put < 0) {
                if (errno == EINTR)
                    continue;
                return errno;
            }
            done += put;
        }
    }
}

}  // namespace

// Publishes a finished file under the target name without replacing anything.
int PublishNoReplace(const std::string& file, const std::string& target)
{
    if (link(file.c_str(), target.c_str()) == 0) {
        unlink(file.c_str());
        return 0;
    }
    const int error = errno;
    if (error == EEXIST)
        return error;
    // Some shared-folder file systems have no hard links.
    return RenameNoReplace(file, target);
}

int CopyFile(const std::string& source, const std::string& target)
{
    if (Exists(target))
        return EEXIST;
    const int in = open(source.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0)
        return errno;
    struct stat st {};
    if (fstat(in, &st) != 0 || !S_ISREG(st.st_mode)) {
        const int error = S_ISDIR(st.st_mode) ? EISDIR : errno;
        close(in);
        return error ? error : EINVAL;
    }
    // Written beside the target under a temporary name, so that a full disk or a crash
    // never leaves a half-written file under the real name.
    replacefile::SiblingFile copy(target);
    int error = copy.Create();
    if (!error)
        error = CopyData(in, copy.Fd());
    close(in);
    return error ? error : copy.PublishAsNew(st.st_mode & 07777);
}

int MoveFile(const std::string& source, const std::string& target)
{
    if (!Exists(source))
        return ENOENT;
    int error = RenameNoReplace(source, target);
    if (error == EINVAL || error == ENOSYS) {
        // No no-replace rename here: a hard link fails on an existing target as well.
        if (link(source.c_str(), target.c_str()) != 0)
            return errno;
        unlink(source.c_str());
        error = 0;
    }
    return error;
}

int Remove(const std::string& path)
{
    if (unlink(path.c_str()) == 0)
        return 0;
    const int error = errno;
    if (error == EISDIR && rmdir(path.c_str()) == 0)
        return 0;
    return error;
}

int MakeDir(const std::string& path)
{
    std::error_code code;
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    if (!parent.empty())
        std::filesystem::create_directories(parent, code);
    if (mkdir(path.c_str(), 0777) != 0)
        return errno;
    return 0;
}

}  // namespace fsutil
