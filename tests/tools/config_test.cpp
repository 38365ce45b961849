// The configuration file: what survives a save, and saves that fail.
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

#include "docmgr/tools/config.h"
#include "tests/support/tempdir.h"

namespace {
using testfs::ReadFile;
using testfs::WriteFile;

struct ConfigFile : ::testing::Test {
    TempDir dir;
    std::string path = dir.PathOf("docmgr.cfg");
};
}  // namespace

TEST_F(ConfigFile, CommentsUnknownKeysAndOrderSurviveASave)
{
    WriteFile(path, "; made by hand\n[GENERAL] ; text after the header\nVIEWMODE=MULTI\n# keep me\nOWNKEY = own value\n"
                    "\n[OTHER]\r\nA=1=2\r\nB=no line end");
    {
        Config config(path);
        EXPECT_TRUE(config.GetLoadError().empty());
        config.SetGroup("OTHER");
        EXPECT_EQ(config.ReadKey("A"), "1=2");  // verbatim after the first "="
        config.SetGroup("GENERAL");
        EXPECT_EQ(config.ReadKey("viewmode", "none"), "none");  // names are case-sensitive
        config.WriteKey("VIEWMODE", "SINGLE");
        config.WriteKey("ACTUALGROUP", "2");
        ASSERT_TRUE(config.Flush());
    }
    // Lines not changed come back byte for byte; the new key takes the first line's end.
    const std::string expected = "; made by hand\n[GENERAL] ; text after the header\nVIEWMODE=SINGLE\n# keep me\n"
                                 "OWNKEY = own value\nACTUALGROUP=2\n\n[OTHER]\r\nA=1=2\r\nB=no line end";
    EXPECT_EQ(ReadFile(path), expected);

    // Through a link the target is saved and the link stays.
    const std::string link = dir.PathOf("link.cfg");
    std::filesystem::create_symlink(path, link);
    {
        Config config(link);
        config.SetGroup("OTHER");
        config.WriteKey("C", "3");
        ASSERT_TRUE(config.Flush());
    }
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(ReadFile(path), expected + "\nC=3\n");
}

TEST_F(ConfigFile, MissingFileIsEmptyWritesMakeSectionsGarbageIsReadWithoutHarmAFailedSaveKeepsWhatWasThere)
{
    {
        Config config(path);
        EXPECT_TRUE(config.GetLoadError().empty());
        config.SetGroup("GENERAL");
        EXPECT_EQ(config.ReadKey("VIEWMODE", "dflt"), "dflt");
    }
    EXPECT_FALSE(std::filesystem::exists(path));  // nothing written, nothing created
    {
        Config config(path);
        config.SetGroup("0");
        config.WriteKey("GROUPNAME", "two\nlines");
        config.SetGroup("1");
        config.WriteKey("GROUPNAME", "other");
        config.DeleteGroup("1");
        EXPECT_FALSE(config.HasGroup("1"));
        config.SetGroup("0");
        EXPECT_EQ(config.ReadKey("GROUPNAME"), "two lines");  // a line break becomes a blank
        ASSERT_TRUE(config.Flush());
    }
    EXPECT_EQ(ReadFile(path), "[0]\nGROUPNAME=two lines\n");
    // No temporary file is left beside the target.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.Path()), {}), 1);

    WriteFile(path, std::string("\0\xff[=]\n=\n[\n]]]\nKEY\n\x01=\x02\n", 23));
    Config config(path);
    EXPECT_TRUE(config.GetLoadError().empty());
    config.SetGroup("");  // no header before it: "\0\xff[=]" is a key, not a section
    EXPECT_EQ(config.ReadKey("\x01"), "\x02");

    // A directory where the file should be cannot be read nor replaced; a missing or
    // read-only folder takes no new file (root writes into a read-only one anyway).
    std::filesystem::create_directory(dir.PathOf("folder.cfg"));
    dir.MakeFile("readonly/docmgr.cfg", "[A]\nK=old\n");
    chmod(dir.PathOf("readonly").c_str(), 0555);
    const bool root = geteuid() == 0;
    const struct {
        std::string file;
        bool loads;
    } cases[] = {{dir.PathOf("folder.cfg"), false}, {dir.PathOf("missing/docmgr.cfg"), true}, {dir.PathOf("readonly/docmgr.cfg"), true}};
    for (const auto& c : cases) {
        if (root && c.file == cases[2].file)
            continue;
        Config failing(c.file);
        EXPECT_EQ(failing.GetLoadError().empty(), c.loads) << c.file;
        failing.SetGroup("A");
        failing.WriteKey("K", "new");
        EXPECT_FALSE(failing.Flush()) << c.file;
        EXPECT_FALSE(failing.GetSaveError().empty()) << c.file;
    }
    EXPECT_TRUE(std::filesystem::is_directory(dir.PathOf("folder.cfg")));
    EXPECT_EQ(dir.Read("readonly/docmgr.cfg"), "[A]\nK=old\n");
}
