#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cerrno>
#include <fstream>
#include <set>
#include <sstream>
#include <sys/stat.h>

#include "docmgr/tools/filestream.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/resmgr.h"
#include "tests/support/tempdir.h"

namespace {
using testfs::ReadFile;
using testfs::WriteFile;

struct Files : ::testing::Test {
    QTemporaryDir tmp;
    std::string dir = tmp.path().toStdString();
    std::string At(const std::string& name) const { return fsutil::Join(dir, name); }
};
}  // namespace

TEST_F(Files, ListingFiltersByKindAndCaseInsensitivePatterns)
{
    WriteFile(At("a.ODT"), "1");
    WriteFile(At("b.pdf"), "22");
    WriteFile(At("c.txt"), "333");
    fsutil::MakeDir(At("sub.odt"));
    auto files = fsutil::List(dir, "*.odt;*.pdf", fsutil::Kind::Files);
    ASSERT_EQ(files.size(), 2u);
    uint64_t total = 0;
    for (const auto& item : files)
        total += item.size;
    EXPECT_EQ(total, 3u);
    auto dirs = fsutil::List(dir, "*", fsutil::Kind::Dirs);
    ASSERT_EQ(dirs.size(), 1u);
    EXPECT_EQ(dirs[0].name, "sub.odt");
    EXPECT_TRUE(fsutil::List(At("missing"), "*", fsutil::Kind::Files).empty());
}

TEST_F(Files, CopyMoveAndRenameNeverOverwrite)
{
    WriteFile(At("source"), "source text");
    WriteFile(At("target"), "target text");
    EXPECT_EQ(fsutil::CopyFile(At("source"), At("target")), EEXIST);
    EXPECT_EQ(fsutil::MoveFile(At("source"), At("target")), EEXIST);
    EXPECT_EQ(ReadFile(At("source")), "source text");
    EXPECT_EQ(ReadFile(At("target")), "target text");

    chmod(At("source").c_str(), 0640);
    ASSERT_EQ(fsutil::CopyFile(At("source"), At("copy")), 0);
    EXPECT_EQ(ReadFile(At("copy")), "source text");
    struct stat st {};
    stat(At("copy").c_str(), &st);
    EXPECT_EQ(st.st_mode & 0777, 0640u);

    ASSERT_EQ(fsutil::MoveFile(At("copy"), At("moved")), 0);
    EXPECT_FALSE(fsutil::Exists(At("copy")));
    EXPECT_EQ(fsutil::MoveFile(At("nothing"), At("x")), ENOENT);
    EXPECT_EQ(fsutil::CopyFile(At("nothing"), At("x")), ENOENT);
    EXPECT_FALSE(fsutil::Exists(At("x")));
    // Only the files made above are left: no temporary copies.
    EXPECT_EQ(fsutil::List(dir, "*", fsutil::Kind::Files).size(), 3u);
}

TEST_F(Files, CopyAcrossFileSystemsAndIntoMissingDirectory)
{
    WriteFile(At("doc"), std::string(200000, 'x'));
    EXPECT_NE(fsutil::CopyFile(At("doc"), At("no/such/dir/doc")), 0);
    QTemporaryDir shm(QStringLiteral("/dev/shm/docmgr-XXXXXX"));
    if (!shm.isValid())
        GTEST_SKIP() << "no tmpfs at /dev/shm";
    const std::string target = shm.filePath("doc").toStdString();
    ASSERT_EQ(fsutil::CopyFile(At("doc"), target), 0);
    EXPECT_EQ(ReadFile(target).size(), 200000u);
}

TEST_F(Files, MakeDirAndRemove)
{
    EXPECT_EQ(fsutil::MakeDir(At("a/b/c")), 0);
    EXPECT_TRUE(fsutil::IsDirectory(At("a/b/c")));
    EXPECT_EQ(fsutil::MakeDir(At("a/b/c")), EEXIST);
    EXPECT_EQ(fsutil::Remove(At("a/b/c")), 0);
    EXPECT_FALSE(fsutil::Exists(At("a/b/c")));
    EXPECT_EQ(fsutil::Remove(At("a/b/none")), ENOENT);
}

TEST_F(Files, PathHelpersAndCurrentDirectory)
{
    EXPECT_EQ(fsutil::FileName("/x/y/z.odt"), "z.odt");
    EXPECT_EQ(fsutil::DirName("/x/y/z.odt"), "/x/y");
    EXPECT_EQ(fsutil::DirName("/z.odt"), "/");
    EXPECT_EQ(fsutil::Absolute("/x/./y/../z/"), "/x/z");
    EXPECT_EQ(fsutil::Join("/", "a"), "/a");
    const std::string before = fsutil::Absolute(".");
    {
        fsutil::CurrentDirGuard guard(dir);
        EXPECT_TRUE(guard.Entered());
        EXPECT_EQ(fsutil::Absolute("."), fsutil::Absolute(dir));
    }
    EXPECT_EQ(fsutil::Absolute("."), before);
}

TEST_F(Files, StreamReadsWritesAtPositionsAndLocksExclusively)
{
    KxFileStream writer;
    ASSERT_TRUE(writer.Open(At("index"), KxFileStream::Mode::ReadWriteCreate));
    EXPECT_EQ(writer.Write("KIDX\0", 5), 5u);
    writer.Seek(2);
    EXPECT_EQ(writer.Write("zz", 2), 2u);
    EXPECT_EQ(writer.Size(), 5u);
    char buffer[8];
    writer.Seek(0);
    EXPECT_EQ(writer.Read(buffer, 8), 5u);  // a short read at the end
    EXPECT_EQ(std::string(buffer, 5), std::string("KIzz\0", 5));

    ASSERT_TRUE(writer.LockExclusive(0));
    KxFileStream other;
    ASSERT_TRUE(other.Open(At("index"), KxFileStream::Mode::ReadWrite));
    EXPECT_FALSE(other.LockExclusive(30));  // held by the first stream, even in this process
    writer.Close();
    EXPECT_TRUE(other.LockExclusive(30));
    EXPECT_TRUE(other.Truncate(0));
    EXPECT_EQ(other.Size(), 0u);
    EXPECT_EQ(GetSystemCharSet(), 106u);
}

TEST(Resources, ModuleSlotHoldsTheManagerWhileTheModuleLives)
{
    EXPECT_EQ(GetModuleResMgr(), nullptr);
    EXPECT_EQ(ResString(15723), "");
    {
        ResModule module(Language::German);
        ASSERT_NE(GetModuleResMgr(), nullptr);
        EXPECT_EQ(ResString(15700), "Dateiname");
        EXPECT_EQ(ResString(15723), "/**");
        EXPECT_EQ(ResString(15720), ".docindex");
    }
    EXPECT_EQ(GetAppData(SHL_DOCMGR), nullptr);
    ResModule english(Language::English);
    EXPECT_EQ(ResString(15700), "File name");
    EXPECT_EQ(ResString(9999), "");
}

TEST(Resources, EveryLanguageHasItsCatalogueAndMenusHaveDistinctKeys)
{
    // A language without a catalogue shows the English texts; a country variant finds
    // its language's catalogue.
    for (const Language& language : {Language{"fr"}, Language{"de_AT"}}) {
        ResModule module(language);
        EXPECT_EQ(ResString(15700), language.code == "fr" ? "File name" : "Dateiname");
    }
    for (const Language& language : {Language::English, Language::German}) {
        ResModule module(language);
        // Translations come from the catalogue by resource id, not by the English text.
        EXPECT_EQ(ResText(ResKind::Menu, 15700, 25).empty(), false);
        std::set<char32_t> keys;
        for (uint16_t item = 20; item <= 26; ++item) {
            const QString text = QString::fromStdString(ResText(ResKind::Menu, 15700, item));
            const qsizetype amp = text.indexOf(u'&');
            ASSERT_GE(amp, 0) << language.code << " " << item;
            EXPECT_TRUE(keys.insert(text.at(amp + 1).toLower().unicode()).second)
                << language.code << ": " << text.toStdString();
        }
    }
}
