// Listing, the file operations that never overwrite, folder names kept below their base, a
// move across devices, temporary files and the module's texts.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cctype>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <unistd.h>
#include <sys/stat.h>

#include "docmgr/tools/docfileops.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/replacefile.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/tempdir.h"
#include "resources/resids.h"

namespace {
struct Files : ::testing::Test {
    TempDir tmp;
    const std::string& dir = tmp.Path();
    std::string At(const std::string& name) const { return tmp.PathOf(name); }
};
}  // namespace

TEST_F(Files, ListingMakeDirAndRemove)
{
    tmp.MakeFile("a.ODT", "1");
    tmp.MakeFile("b.pdf", "22");
    tmp.MakeFile("c.txt", "333");
    EXPECT_EQ(fsutil::MakeDir(At("sub.odt/b/c")), 0);
    EXPECT_EQ(fsutil::MakeDir(At("sub.odt/b/c")), EEXIST);
    EXPECT_EQ(fsutil::Remove(At("sub.odt/b/c")), 0);
    EXPECT_FALSE(fsutil::Exists(At("sub.odt/b/c")));
    EXPECT_EQ(fsutil::Remove(At("sub.odt/b/none")), ENOENT);

    // Patterns are alternatives in any case; sizes come with the names.
    uint64_t total = 0;
    for (const auto& item : fsutil::List(dir, "*.odt;*.pdf", fsutil::Kind::Files))
        total += item.size;
    EXPECT_EQ(total, 3u);
    const auto dirs = fsutil::List(dir, "*", fsutil::Kind::Dirs);
    ASSERT_EQ(dirs.size(), 1u);
    EXPECT_EQ(dirs[0].name, "sub.odt");
    EXPECT_TRUE(fsutil::IsDirectory(At("sub.odt/b")));
    EXPECT_TRUE(fsutil::List(At("missing"), "*", fsutil::Kind::Files).empty());
}

// The single table of the no-overwrite, no-loss cases of copying and moving.
TEST_F(Files, CopyAndMoveNeverOverwriteNorLoseAFile)
{
    const std::string text(200000, 'x');  // more than one buffer
    tmp.MakeFile("target", "target text");
    tmp.MakeFile("source", text);
    chmod(At("source").c_str(), 0640);
    using Op = int (*)(const std::string&, const std::string&);
    const struct {
        const char* what;
        Op op;
        std::string from, to;
        int result;
    } cases[] = {
        {"copy onto a file", fsutil::CopyFile, At("source"), At("target"), EEXIST},
        {"move onto a file", fsutil::MoveFile, At("source"), At("target"), EEXIST},
        {"copy of nothing", fsutil::CopyFile, At("nothing"), At("x"), ENOENT},
        {"move of nothing", fsutil::MoveFile, At("nothing"), At("x"), ENOENT},
        {"copy into a missing folder", fsutil::CopyFile, At("source"), At("no/dir/doc"), ENOENT},
        {"copy keeps the access rights", fsutil::CopyFile, At("source"), At("copy"), 0},
        {"move renames", fsutil::MoveFile, At("copy"), At("moved"), 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.op(c.from, c.to), c.result) << c.what;
    // Nothing replaced, nothing lost, no temporary copies left.
    EXPECT_EQ(testfs::ReadFile(At("target")), "target text");
    for (const std::string& path : {At("source"), At("moved")})
        EXPECT_EQ(testfs::ReadFile(path), text) << path;
    struct stat st {};
    stat(At("moved").c_str(), &st);
    EXPECT_EQ(st.st_mode & 0777, 0640u);
    EXPECT_EQ(fsutil::List(dir, "*", fsutil::Kind::Files).size(), 3u);
}

TEST_F(Files, FolderNamesStayBelowTheBaseAndAMoveAcrossDevicesCopiesThenRemoves)
{
    for (const char* name : {"a", "a/b", "a//b/", "./a", "a.b", "..a", "a..", "...", "a/..b"})
        EXPECT_TRUE(docfileops::StaysBelow(name)) << name;
    for (const char* name : {"", "..", "../x", "a/../../x", "a/..", "/tmp/x", "/"})
        EXPECT_FALSE(docfileops::StaysBelow(name)) << name;

    const std::string base = tmp.MakeDir("base");
    EXPECT_EQ(docfileops::MakeFolder(base, "a/b"), 0);
    EXPECT_TRUE(std::filesystem::is_directory(base + "/a/b"));
    EXPECT_EQ(docfileops::FolderPath(base, "a//b/"), base + "/a/b");
    EXPECT_EQ(docfileops::MakeFolder(base, "a/b"), 0) << "an existing folder is there to use";
    EXPECT_EQ(docfileops::MakeFolder(base, "../x"), EINVAL);
    tmp.MakeFile("base/plain", "keep");
    EXPECT_NE(docfileops::MakeFolder(base, "plain"), 0);
    EXPECT_NE(docfileops::MakeFolder(base, "plain/sub"), 0);
    EXPECT_EQ(tmp.Read("base/plain"), "keep");

    // A move across devices copies (more than one buffer), then removes.
    QTemporaryDir shm(QStringLiteral("/dev/shm/docmgr-test-XXXXXX"));
    const std::string other = shm.path().toStdString();
    struct stat here {};
    struct stat there {};
    if (!shm.isValid() || stat(dir.c_str(), &here) != 0 || stat(other.c_str(), &there) != 0 || here.st_dev == there.st_dev)
        GTEST_SKIP() << "no writable /dev/shm on another device";
    const std::string contents(300000, 'z');
    ASSERT_EQ(docfileops::MoveInto(tmp.MakeFile("a.odt", contents), other), 0);
    EXPECT_FALSE(tmp.Exists("a.odt"));
    EXPECT_EQ(testfs::ReadFile(other + "/a.odt"), contents);

    // Back again onto an existing file: the copy fails, so nothing is removed.
    tmp.MakeFile("a.odt", "here");
    EXPECT_EQ(docfileops::MoveInto(other + "/a.odt", dir), EEXIST);
    EXPECT_EQ(testfs::ReadFile(other + "/a.odt"), contents);
    EXPECT_EQ(tmp.Read("a.odt"), "here");
}

TEST(Resources, ModuleSlotHoldsTheManagerWhileTheModuleLives)
{
    EXPECT_EQ(GetModuleResMgr(), nullptr);
    EXPECT_EQ(ResString(STR_SUBDIR_MARKER), "");
    {
        ResModule module(Language::German);
        ASSERT_NE(GetModuleResMgr(), nullptr);
        EXPECT_EQ(ResString(STR_COL_NAME), "Dateiname");
        EXPECT_EQ(ResString(STR_SUBDIR_MARKER), "/**");
        EXPECT_EQ(ResString(STR_INDEX_NAME), ".docindex");
    }
    // A language without a catalogue shows English; a country variant finds its language.
    for (const Language& language : {Language{"fr"}, Language{"de_AT"}}) {
        ResModule module(language);
        EXPECT_EQ(ResString(STR_COL_NAME), language.code == "fr" ? "File name" : "Dateiname");
    }
    EXPECT_EQ(GetAppData(SHL_DOCMGR), nullptr);
    ResModule english(Language::English);
    EXPECT_EQ(ResString(STR_COL_NAME), "File name");
    EXPECT_EQ(ResString(9999), "");
}

TEST_F(Files, TemporaryFilesOfAKilledWriterAreKnownAndThoseOfOtherHostsLeftWhileFresh)
{
    char host[256] = {};
    gethostname(host, sizeof host - 1);
    std::string tag = host;
    for (char& c : tag)
        if (!isalnum(static_cast<unsigned char>(c)) && c != '.')
            c = '_';
    // A process id that no process has: far beyond any pid_max.
    const std::string dead = "1073741000", alive = std::to_string(getpid());
    const int64_t now = time(nullptr);
    const struct {
        std::string name;
        int64_t age;
        bool abandoned;
    } cases[] = {
        {".docindex.tmp-" + tag + "-" + dead + "-0-77", 0, true},
        {".docindex.tmp-" + tag + "-" + alive + "-0-77", 7200, false},
        {".docindex.tmp-" + dead + "-0-77", 0, true},  // written before the host was named
        {".docindex.tmp-elsewhere-" + dead + "-0-77", 60, false},
        {".docindex.tmp-elsewhere-" + dead + "-0-77", 7200, true},
        {".docindex.tmp-", 7200, false},
        {"other.tmp-" + tag + "-" + dead + "-0-77", 0, false},
    };
    for (const auto& c : cases) {
        tmp.MakeFile(c.name, "x", now - c.age);
        EXPECT_EQ(replacefile::IsAbandonedTemp(dir, c.name, ".docindex"), c.abandoned) << c.name;
        tmp.Remove(c.name);
    }
    // A replacement names its temporary file so.
    std::string seen;
    const auto fill = [&](const replacefile::PutPiece& put) {
        for (const auto& item : fsutil::List(dir, ".docindex.tmp-*", fsutil::Kind::Files))
            seen = item.name;
        put("new");
        return true;
    };
    ASSERT_EQ(replacefile::ReplaceWith(At(".docindex"), fill), 0);
    EXPECT_EQ(seen.substr(0, 15 + tag.size()), ".docindex.tmp-" + tag + "-");
    EXPECT_EQ(tmp.Read(".docindex"), "new");
}
