#pragma once
// A QTemporaryDir for tests, with files of chosen contents and modification times,
// subdirectories and links; removed with everything in it when the object goes.
#include <QTemporaryDir>
#include <cstdint>
#include <string>

// Helpers on any path; they fail the test when they cannot do their job.
namespace testfs {
// Returns once the clock files are stamped from has passed every time a file could have
// been given so far, so that a listing started now finds them older than its start.
void WaitForFileClock();
void SetMTime(const std::string& path, int64_t seconds, long nanoseconds = 0);
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& contents);
}  // namespace testfs

class TempDir {
public:
    // Creates a fresh directory under $TMPDIR (or /tmp).
    TempDir();
    // Gives back permissions a test took away, so that the tree can be removed.
    ~TempDir();

    // Absolute canonical path of the directory, or of `relative` inside it.
    const std::string& Path() const { return path_; }
    std::string PathOf(const std::string& relative) const { return relative.empty() ? path_ : path_ + "/" + relative; }

    // Writes a file (parent directories created, an existing file replaced); returns its path.
    std::string MakeFile(const std::string& relative, const std::string& contents = {});
    // Same, and gives it the modification time `seconds` since the epoch.
    std::string MakeFile(const std::string& relative, const std::string& contents, int64_t seconds, long nanoseconds = 0);
    std::string MakeDir(const std::string& relative);
    // A symbolic link at `relative` pointing to `target` (taken as it stands).
    std::string MakeLink(const std::string& relative, const std::string& target);

    std::string Read(const std::string& relative) const { return testfs::ReadFile(PathOf(relative)); }
    bool Exists(const std::string& relative) const;
    uint64_t Size(const std::string& relative) const;
    int64_t MTimeNs(const std::string& relative) const;
    void SetMTime(const std::string& relative, int64_t seconds, long nanoseconds = 0) const
    {
        testfs::SetMTime(PathOf(relative), seconds, nanoseconds);
    }
    void Remove(const std::string& relative) const;

private:
    QTemporaryDir dir_;
    std::string path_;
};
