#include "host/readers/tempsibling.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <vector>

namespace {

std::string DirectoryOf(const std::string& path)
{
    const std::string dir = std::filesystem::path(path).parent_path().string();
    return dir.empty() ? "." : dir;
}

}  // namespace

TempSibling::~TempSibling()
{
    if (!path_.empty() && !committed_)
        ::unlink(path_.c_str());
}

bool TempSibling::Create(std::string& error)
{
    const std::filesystem::path target(target_);
    std::string pattern = DirectoryOf(target_) + "/." + target.filename().string() + ".XXXXXX";
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    const int fd = ::mkstemp(name.data());
    if (fd < 0) {
        const int err = errno;
        error = err == EACCES || err == EPERM || err == EROFS
            ? "The folder " + DirectoryOf(target_) + " is read-only."
            : "Cannot create a file in " + DirectoryOf(target_) + ": " + std::strerror(err);
        return false;
    }
    ::close(fd);
    path_ = name.data();
    return true;
}

bool TempSibling::CopyTarget(std::string& error)
{
    std::error_code ec;
    std::filesystem::copy_file(target_, path_, std::filesystem::copy_options::overwrite_existing, ec);
    if (ec) {
        error = "Cannot copy " + target_ + ": " + ec.message();
        return false;
    }
    return true;
}

bool TempSibling::Commit(std::string& error)
{
    struct stat st;
    if (::stat(target_.c_str(), &st) != 0) {
        error = "The file " + target_ + " has disappeared.";
        return false;
    }
    const int fd = ::open(path_.c_str(), O_RDONLY);
    if (fd < 0) {
        error = "Cannot reopen the new version of " + target_ + ": " + std::strerror(errno);
        return false;
    }
    // Only a privileged process may give the file away; the permissions always follow.
    [[maybe_unused]] const int owned = ::fchown(fd, st.st_uid, st.st_gid);
    const bool ok = ::fchmod(fd, st.st_mode & 07777) == 0 && ::fsync(fd) == 0;
    const int err = errno;
    ::close(fd);
    if (!ok) {
        error = "Cannot finish the new version of " + target_ + ": " + std::strerror(err);
        return false;
    }
    if (::rename(path_.c_str(), target_.c_str()) != 0) {
        error = "Cannot replace " + target_ + ": " + std::strerror(errno);
        return false;
    }
    committed_ = true;
    return true;
}
