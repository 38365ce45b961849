#include "tests/support/tempdir.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace testfs {

void SetMTime(const std::string& path, int64_t seconds, long nanoseconds)
{
    const timespec times[2] = {{time_t(seconds), nanoseconds}, {time_t(seconds), nanoseconds}};
    if (utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0)
        ADD_FAILURE() << "cannot set the time of " << path;
}

int64_t MTimeNs(const std::string& path)
{
    struct stat st {};
    if (lstat(path.c_str(), &st) != 0)
        return -1;
    return int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
}

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void WriteFile(const std::string& path, const std::string& contents)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(contents.data(), std::streamsize(contents.size()));
    if (!out)
        ADD_FAILURE() << "cannot write " << path;
}

}  // namespace testfs

TempDir::TempDir()
{
    const char* base = std::getenv("TMPDIR");
    std::string pattern = std::string(base && *base ? base : "/tmp") + "/docmgr-test-XXXXXX";
    std::vector<char> buffer(pattern.begin(), pattern.end());
    buffer.push_back('\0');
    if (!mkdtemp(buffer.data()))
        throw std::runtime_error("cannot create a temporary directory");
    // Canonical, so paths compare equal to what the program makes absolute.
    path_ = fs::canonical(buffer.data()).string();
}

TempDir::~TempDir()
{
    std::error_code error;
    // Subdirectories a test made unreadable must be opened again before they can go;
    // each is opened before the walk descends into it.
    for (auto it = fs::recursive_directory_iterator(path_, fs::directory_options::skip_permission_denied, error);
         !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        if (it->is_directory(error) && !it->is_symlink(error))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
    fs::remove_all(path_, error);
}

std::string TempDir::PathOf(const std::string& relative) const
{
    return relative.empty() ? path_ : path_ + "/" + relative;
}

std::string TempDir::MakeFile(const std::string& relative, const std::string& contents)
{
    const std::string path = PathOf(relative);
    std::error_code error;
    fs::create_directories(fs::path(path).parent_path(), error);
    testfs::WriteFile(path, contents);
    return path;
}

std::string TempDir::MakeFile(const std::string& relative, const std::string& contents,
                              int64_t seconds, long nanoseconds)
{
    const std::string path = MakeFile(relative, contents);
    testfs::SetMTime(path, seconds, nanoseconds);
    return path;
}

std::string TempDir::MakeDir(const std::string& relative)
{
    const std::string path = PathOf(relative);
    std::error_code error;
    fs::create_directories(path, error);
    if (error)
        ADD_FAILURE() << "cannot create " << path << ": " << error.message();
    return path;
}

std::string TempDir::MakeLink(const std::string& relative, const std::string& target)
{
    const std::string path = PathOf(relative);
    if (symlink(target.c_str(), path.c_str()) != 0)
        ADD_FAILURE() << "cannot create the link " << path;
    return path;
}

std::string TempDir::Read(const std::string& relative) const
{
    return testfs::ReadFile(PathOf(relative));
}

bool TempDir::Exists(const std::string& relative) const
{
    struct stat st {};
    return lstat(PathOf(relative).c_str(), &st) == 0;
}

uint64_t TempDir::Size(const std::string& relative) const
{
    struct stat st {};
    return stat(PathOf(relative).c_str(), &st) == 0 ? uint64_t(st.st_size) : 0;
}

int64_t TempDir::MTimeNs(const std::string& relative) const
{
    return testfs::MTimeNs(PathOf(relative));
}

void TempDir::SetMTime(const std::string& relative, int64_t seconds, long nanoseconds) const
{
    testfs::SetMTime(PathOf(relative), seconds, nanoseconds);
}

void TempDir::Remove(const std::string& relative) const
{
    std::error_code error;
    fs::remove_all(PathOf(relative), error);
}
