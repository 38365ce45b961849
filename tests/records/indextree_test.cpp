// Reading a directory with its subdirectories.
#include <filesystem>

#include "tests/records/indextestbase.h"

using Names = std::vector<std::string>;

TEST_F(IndexTest, SubdirectoriesFollowTheirParentAndEachGetsAnIndexButLinksAndExceptionsAreSkipped)
{
    TempDir elsewhere;
    elsewhere.MakeFile("outside.odt", "x", OLD);
    Doc("a.odt");
    Doc("sub/b.odt");
    Doc("sub/deeper/c.odt");
    Doc("skip/d.odt");
    dir.MakeDir("empty");
    dir.MakeLink("sub/back", dir.Path());
    dir.MakeLink("sub/self", ".");
    dir.MakeLink("sub/away", elsewhere.Path());
    config.SetExceptionPaths(dir.PathOf("skip") + ";/elsewhere");
    const auto cwd = std::filesystem::current_path();

    ReadDir(true);
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt", "c.odt"})) << "pre-order";
    EXPECT_TRUE(dir.Exists("sub/.docindex"));
    EXPECT_TRUE(dir.Exists("sub/deeper/.docindex"));
    EXPECT_FALSE(dir.Exists("empty/.docindex") || dir.Exists("skip/.docindex"));
    EXPECT_FALSE(elsewhere.Exists(".docindex")) << "no index outside the tree given";
    EXPECT_EQ(source.progressCalls, 4u) << "once per directory";
    EXPECT_EQ(source.lastProgressDocs, 3u);
    EXPECT_EQ(std::filesystem::current_path(), cwd);

    ReadDir(false);
    EXPECT_EQ(RowNames(), Names{"a.odt"});
}
