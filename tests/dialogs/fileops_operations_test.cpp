// The file operations behind the copy, new-folder and rename dialogs, on real files.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "docmgr/dialogs/docfileops.h"
#include "tests/support/tempdir.h"

namespace {
namespace fs = std::filesystem;

ino_t Inode(const std::string& path)
{
    struct stat st {};
    return stat(path.c_str(), &st) == 0 ? st.st_ino : 0;
}

dev_t Device(const std::string& path)
{
    struct stat st {};
    return stat(path.c_str(), &st) == 0 ? st.st_dev : 0;
}

std::set<std::string> Names(const std::string& dir)
{
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(dir))
        names.insert(entry.path().filename().string());
    return names;
}

// A directory on another device than the temporary directories, when the machine has one.
class OtherDevice {
public:
    explicit OtherDevice(const std::string& near)
    {
        std::string pattern = "/dev/shm/docmgr-test-XXXXXX";
        if (access("/dev/shm", W_OK) != 0 || !mkdtemp(pattern.data()))
            return;
        if (Device(pattern) == Device(near)) {
            fs::remove_all(pattern);
            return;
        }
        path_ = pattern;
    }
    ~OtherDevice()
    {
        if (!path_.empty())
            fs::remove_all(path_);
    }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

TEST(FileOps, CopyLeavesTheSourceAndNeverReplacesATarget)
{
    TempDir dir;
    const std::string source = dir.MakeFile("src/report.odt", "new contents");
    dir.MakeDir("dst");
    ASSERT_EQ(docfileops::CopyInto(source, dir.PathOf("dst")), 0);
    EXPECT_EQ(dir.Read("dst/report.odt"), "new contents");
    EXPECT_EQ(dir.Read("src/report.odt"), "new contents");

    // Again: the copy now there is neither replaced nor touched.
    dir.MakeFile("dst/report.odt", "older copy");
    EXPECT_EQ(docfileops::CopyInto(source, dir.PathOf("dst")), EEXIST);
    EXPECT_EQ(dir.Read("dst/report.odt"), "older copy");
    EXPECT_EQ(dir.Read("src/report.odt"), "new contents");
    EXPECT_EQ(Names(dir.PathOf("dst")), std::set<std::string>{"report.odt"}) << "no temporary left";

    // Into its own directory: the target is the source itself.
    EXPECT_NE(docfileops::CopyInto(source, dir.PathOf("src")), 0);
    EXPECT_EQ(dir.Read("src/report.odt"), "new contents");

    // A plain file where the directory should be.
    const std::string notADir = dir.MakeFile("plain", "x");
    EXPECT_NE(docfileops::CopyInto(source, notADir), 0);
    EXPECT_EQ(dir.Read("plain"), "x");
}

TEST(FileOps, CopyIntoAReadOnlyDirectoryFails)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root writes into read-only directories";
    TempDir dir;
    const std::string source = dir.MakeFile("a.odt", "text");
    const std::string locked = dir.MakeDir("locked");
    ASSERT_EQ(chmod(locked.c_str(), 0555), 0);
    EXPECT_NE(docfileops::CopyInto(source, locked), 0);
    EXPECT_NE(docfileops::MoveInto(source, locked), 0);
    chmod(locked.c_str(), 0755);
    EXPECT_TRUE(Names(locked).empty());
    EXPECT_EQ(dir.Read("a.odt"), "text");
}

TEST(FileOps, MoveOnOneDeviceRenamesAndNeverReplaces)
{
    TempDir dir;
    const std::string source = dir.MakeFile("src/a.odt", "moved");
    const ino_t inode = Inode(source);
    dir.MakeDir("dst");
    ASSERT_EQ(docfileops::MoveInto(source, dir.PathOf("dst")), 0);
    EXPECT_FALSE(dir.Exists("src/a.odt"));
    EXPECT_EQ(dir.Read("dst/a.odt"), "moved");
    EXPECT_EQ(Inode(dir.PathOf("dst/a.odt")), inode) << "renamed, not copied";

    // An existing target: both files stay as they are.
    const std::string again = dir.MakeFile("src/a.odt", "second");
    EXPECT_EQ(docfileops::MoveInto(again, dir.PathOf("dst")), EEXIST);
    EXPECT_EQ(dir.Read("src/a.odt"), "second");
    EXPECT_EQ(dir.Read("dst/a.odt"), "moved");

    // Into its own directory: the file must survive.
    EXPECT_NE(docfileops::MoveInto(again, dir.PathOf("src")), 0);
    EXPECT_EQ(dir.Read("src/a.odt"), "second");

    // A source that has gone meanwhile.
    EXPECT_NE(docfileops::MoveInto(dir.PathOf("src/gone.odt"), dir.PathOf("dst")), 0);
    EXPECT_FALSE(dir.Exists("dst/gone.odt"));
}

TEST(FileOps, MoveAcrossDevicesCopiesThenRemoves)
{
    TempDir dir;
    OtherDevice other(dir.Path());
    if (other.Path().empty())
        GTEST_SKIP() << "no writable directory on another device";
    const std::string contents(300000, 'z');
    const std::string source = dir.MakeFile("a.odt", contents);
    ASSERT_EQ(docfileops::MoveInto(source, other.Path()), 0);
    EXPECT_FALSE(dir.Exists("a.odt"));
    EXPECT_EQ(testfs::ReadFile(other.Path() + "/a.odt"), contents);

    // Back again onto an existing file: the copy fails, so nothing is removed.
    dir.MakeFile("a.odt", "here");
    EXPECT_EQ(docfileops::MoveInto(other.Path() + "/a.odt", dir.Path()), EEXIST);
    EXPECT_EQ(testfs::ReadFile(other.Path() + "/a.odt"), contents);
    EXPECT_EQ(dir.Read("a.odt"), "here");
    EXPECT_EQ(Names(dir.Path()), std::set<std::string>{"a.odt"}) << "no temporary left";
}

TEST(FileOps, FolderNamesStayBelowTheBase)
{
    for (const char* name : {"a", "a/b", "a//b/", "./a", "a.b", "..a", "a..", "...", "a/..b"})
        EXPECT_TRUE(docfileops::StaysBelow(name)) << name;
    for (const char* name : {"", "..", "../x", "a/../../x", "a/..", "/tmp/x", "/"})
        EXPECT_FALSE(docfileops::StaysBelow(name)) << name;

    TempDir dir;
    const std::string base = dir.MakeDir("base");
    EXPECT_EQ(docfileops::MakeFolder(base, "a/b"), 0);
    EXPECT_TRUE(fs::is_directory(base + "/a/b"));
    EXPECT_EQ(docfileops::FolderPath(base, "a//b/"), base + "/a/b");
    EXPECT_EQ(docfileops::MakeFolder(base, "a/b"), 0) << "an existing folder is there to use";

    dir.MakeFile("base/plain", "keep");
    EXPECT_NE(docfileops::MakeFolder(base, "plain"), 0);
    EXPECT_NE(docfileops::MakeFolder(base, "plain/sub"), 0);
    EXPECT_EQ(dir.Read("base/plain"), "keep");
}

}  // namespace
