// What the file operations add to the toolkit's no-overwrite copy and move: folder names
// kept below their base, and a move across devices.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include <cerrno>
#include <filesystem>

#include "docmgr/tools/docfileops.h"
#include "tests/support/tempdir.h"

namespace fs = std::filesystem;

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
    EXPECT_EQ(docfileops::MakeFolder(base, "../x"), EINVAL);
    dir.MakeFile("base/plain", "keep");
    EXPECT_NE(docfileops::MakeFolder(base, "plain"), 0);
    EXPECT_NE(docfileops::MakeFolder(base, "plain/sub"), 0);
    EXPECT_EQ(dir.Read("base/plain"), "keep");
}

TEST(FileOps, MoveAcrossDevicesCopiesThenRemoves)
{
    TempDir dir;
    QTemporaryDir shm(QStringLiteral("/dev/shm/docmgr-test-XXXXXX"));
    const std::string other = shm.path().toStdString();
    struct stat here {}, there {};
    if (!shm.isValid() || stat(dir.Path().c_str(), &here) != 0 || stat(other.c_str(), &there) != 0
        || here.st_dev == there.st_dev)
        GTEST_SKIP() << "no writable /dev/shm on another device";
    const std::string contents(300000, 'z');
    ASSERT_EQ(docfileops::MoveInto(dir.MakeFile("a.odt", contents), other), 0);
    EXPECT_FALSE(dir.Exists("a.odt"));
    EXPECT_EQ(testfs::ReadFile(other + "/a.odt"), contents);

    // Back again onto an existing file: the copy fails, so nothing is removed.
    dir.MakeFile("a.odt", "here");
    EXPECT_EQ(docfileops::MoveInto(other + "/a.odt", dir.Path()), EEXIST);
    EXPECT_EQ(testfs::ReadFile(other + "/a.odt"), contents);
    EXPECT_EQ(dir.Read("a.odt"), "here");
}
