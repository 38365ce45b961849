// Reading a directory with its subdirectories.
#include <filesystem>

#include "tests/records/indextestbase.h"

using Names = std::vector<std::string>;

TEST_F(IndexTest, SubdirectoriesFollowTheirParentAndEachGetsAnIndex)
{
    Doc("a.odt");
    Doc("sub/b.odt");
    Doc("sub/deeper/c.odt");
    dir.MakeDir("empty");
    const auto cwd = std::filesystem::current_path();

    ReadDir(true);
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt", "c.odt"})) << "pre-order";
    EXPECT_TRUE(dir.Exists("sub/.docindex"));
    EXPECT_TRUE(dir.Exists("sub/deeper/.docindex"));
    EXPECT_FALSE(dir.Exists("empty/.docindex"));
    EXPECT_EQ(source.progressCalls, 4u) << "once per directory";
    EXPECT_EQ(source.lastProgressDocs, 3u);
    EXPECT_EQ(std::filesystem::current_path(), cwd);

    ReadDir(false);
    EXPECT_EQ(RowNames(), Names{"a.odt"});
}

TEST_F(IndexTest, LinkedFoldersAreNotEnteredAndExceptionPathsAreSkipped)
{
    TempDir elsewhere;
    elsewhere.MakeFile("outside.odt", "x", OLD);
    Doc("a.odt");
    Doc("sub/b.odt");
    Doc("skip/c.odt");
    dir.MakeLink("sub/back", dir.Path());
    dir.MakeLink("sub/self", ".");
    dir.MakeLink("sub/away", elsewhere.Path());
    config.SetExceptionPaths(dir.PathOf("skip") + ";/elsewhere");

    ReadDir(true);
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
    EXPECT_FALSE(dir.Exists("skip/.docindex"));
    EXPECT_FALSE(elsewhere.Exists(".docindex")) << "no index outside the tree given";
}
