#pragma once
// A temporary directory for tests: files with chosen contents and modification times,
// subdirectories and links; removed with everything in it when the object goes.
#include <cstdint>
#include <string>

class TempDir {
public:
    // Creates a fresh directory under $TMPDIR (or /tmp).
    TempDir();
    // Removes the tree, giving back permissions a test took away.
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    // Absolute path of the directory, or of `relative` inside it.
    const std::string& Path() const { return path_; }
    std::string PathOf(const std::string& relative) const;

    // Writes a file (parent directories created, an existing file replaced); returns its path.
    std::string MakeFile(const std::string& relative, const std::string& contents = {});
    // Same, and gives it the modification time `seconds` since the epoch.
    std::string MakeFile(const std::string& relative, const std::string& contents,
                         int64_t seconds, long nanoseconds = 0);
    std::string MakeDir(const std::string& relative);
    // A symbolic link at `relative` pointing to `target` (taken as it stands).
    std::string MakeLink(const std::string& relative, const std::string& target);

    std::string Read(const std::string& relative) const;
    bool Exists(const std::string& relative) const;
    uint64_t Size(const std::string& relative) const;
    int64_t MTimeNs(const std::string& relative) const;
    void SetMTime(const std::string& relative, int64_t seconds, long nanoseconds = 0) const;
    void Remove(const std::string& relative) const;

private:
    std::string path_;
};

// Helpers on any path.
namespace testfs {
// Sets the modification (and access) time with nanoseconds; fails the test when it cannot.
void SetMTime(const std::string& path, int64_t seconds, long nanoseconds = 0);
int64_t MTimeNs(const std::string& path);
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& contents);
}  // namespace testfs
