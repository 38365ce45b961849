#include "tests/support/tempdir.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <ctime>
#include <unistd.h>

#include <QDir>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace fs = std::filesystem;

void testfs::WaitForFileClock()
{
    timespec now{}, coarse{};
    clock_gettime(CLOCK_REALTIME, &now);
    do {
        usleep(1000);
        clock_gettime(CLOCK_REALTIME_COARSE, &coarse);
    } while (coarse.tv_sec < now.tv_sec || (coarse.tv_sec == now.tv_sec && coarse.tv_nsec <= now.tv_nsec));
}

void testfs::SetMTime(const std::string& path, int64_t seconds, long nanoseconds)
{
    const timespec times[2] = {{time_t(seconds), nanoseconds}, {time_t(seconds), nanoseconds}};
    if (utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) != 0)
        ADD_FAILURE() << "cannot set the time of " << path;
}

std::string testfs::ReadFile(const std::string& path)
{
    std::ostringstream out;
    out << std::ifstream(path, std::ios::binary).rdbuf();
    return out.str();
}

void testfs::WriteFile(const std::string& path, const std::string& contents)
{
    if (!(std::ofstream(path, std::ios::binary | std::ios::trunc) << contents))
        ADD_FAILURE() << "cannot write " << path;
}

TempDir::TempDir() : dir_(QDir::tempPath() + QStringLiteral("/docmgr-test-XXXXXX"))
{
    EXPECT_TRUE(dir_.isValid()) << "cannot create a temporary directory";
    // Canonical, so paths compare equal to what the program makes absolute.
    std::error_code error;
    path_ = fs::canonical(dir_.path().toStdString(), error).string();
}

TempDir::~TempDir()
{
    std::error_code error;
    // Each directory is opened again before the walk descends into it.
    for (auto it = fs::recursive_directory_iterator(path_, fs::directory_options::skip_permission_denied, error);
         !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        if (it->is_directory(error) && !it->is_symlink(error))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
}

std::string TempDir::MakeFile(const std::string& relative, const std::string& contents)
{
    MakeDir(fs::path(relative).parent_path().string());
    testfs::WriteFile(PathOf(relative), contents);
    return PathOf(relative);
}

std::string TempDir::MakeFile(const std::string& relative, const std::string& contents, int64_t seconds, long nanoseconds)
{
    MakeFile(relative, contents);
    SetMTime(relative, seconds, nanoseconds);
    return PathOf(relative);
}

std::string TempDir::MakeDir(const std::string& relative)
{
    std::error_code error;
    fs::create_directories(PathOf(relative), error);
    EXPECT_FALSE(error) << "cannot create " << PathOf(relative);
    return PathOf(relative);
}

std::string TempDir::MakeLink(const std::string& relative, const std::string& target)
{
    std::error_code error;
    fs::create_symlink(target, PathOf(relative), error);
    EXPECT_FALSE(error) << "cannot create the link " << PathOf(relative);
    return PathOf(relative);
}

bool TempDir::Exists(const std::string& relative) const
{
    std::error_code error;
    return fs::exists(fs::symlink_status(PathOf(relative), error));
}

uint64_t TempDir::Size(const std::string& relative) const
{
    std::error_code error;
    const uint64_t size = fs::file_size(PathOf(relative), error);
    return error ? 0 : size;
}

int64_t TempDir::MTimeNs(const std::string& relative) const
{
    struct stat st {};
    if (lstat(PathOf(relative).c_str(), &st) != 0)
        return -1;
    return int64_t(st.st_mtim.tv_sec) * 1000000000 + st.st_mtim.tv_nsec;
}

void TempDir::Remove(const std::string& relative) const
{
    std::error_code error;
    fs::remove_all(PathOf(relative), error);
}
