// Collecting a path list into the row list, walking the selected rows, and reading a
// directory with its subdirectories.
#include <filesystem>

#include "tests/records/indextestbase.h"

using Names = std::vector<std::string>;

TEST_F(IndexTest, CollectTakesExistingDirectoriesInPathListOrder)
{
    Docs({"one/a.odt", "two/b.odt", "two/sub/c.odt", "file.odt"});
    ASSERT_TRUE(rows.NeedsCollect());

    rows.CollectFiles(dir.PathOf("two") + "/**;" + dir.PathOf("missing") + ";;" + dir.PathOf("file.odt") + ";" + dir.PathOf("one"));
    EXPECT_EQ(RowNames(), (Names{"b.odt", "c.odt", "a.odt"}));
    EXPECT_FALSE(rows.NeedsCollect());
    EXPECT_FALSE(dir.Exists("missing"));

    rows.CollectFiles("");
    EXPECT_EQ(rows.GetRowCount(), 0);
}

TEST_F(IndexTest, CollectFiltersAndSortsByTheWorkingGroup)
{
    auto record = [this](const char* name, const char* title) {
        Doc(name);
        return indeximage::SampleRecord(name).Text(indeximage::TITLE, 63, title);
    };
    // Without a sort column rows keep the index order.
    WriteIndex(Image({record("b.odt", "Plan"), record("c.odt", "Other"), record("a.odt", "Plan")}));
    ASSERT_EQ(config.WorkingGroup().sortColumnId, NO_COLUMN);
    rows.CollectFiles(dir.Path());
    EXPECT_EQ(RowNames(), (Names{"b.odt", "c.odt", "a.odt"}));

    DocGroupConfig& group = config.WorkingGroup();
    group.sortColumnId = 1;
    group.sortAscending = false;
    rows.CollectFiles(dir.Path());
    EXPECT_EQ(RowNames(), (Names{"c.odt", "b.odt", "a.odt"}));

    // The case flag alone is no filter.
    group.filterSensitive = true;
    rows.CollectFiles(dir.Path());
    EXPECT_EQ(rows.GetRowCount(), 3);

    group.filterTitle = "plan";
    group.filterSensitive = false;
    group.sortAscending = true;
    rows.CollectFiles(dir.Path());
    EXPECT_EQ(RowNames(), (Names{"a.odt", "b.odt"}));
}

TEST_F(IndexTest, SelectedRowsAreWalkedAndRemovedRowsLeaveTheIndex)
{
    Docs({"a.odt", "b.odt", "c.odt"});
    config.WorkingGroup().sortColumnId = 1;
    rows.CollectFiles(dir.Path());

    TestSelection none, two({0, 2});
    EXPECT_EQ(rows.GetFirstDoc(none), nullptr);
    EXPECT_EQ(rows.GetNextDoc(none), nullptr);
    std::vector<std::string> walked;
    for (const std::string* doc = rows.GetFirstDoc(two); doc; doc = rows.GetNextDoc(two))
        walked.push_back(*doc);
    EXPECT_EQ(walked, (Names{dir.PathOf("a.odt"), dir.PathOf("c.odt")}));
    EXPECT_EQ(rows.GetNextDoc(two), nullptr) << "stays at the end";

    const std::string index = Index();
    EXPECT_EQ(rows.RowRemoved(dir.PathOf("b.odt")), std::vector<long>{1});
    EXPECT_EQ(RowNames(), (Names{"a.odt", "c.odt"}));
    EXPECT_EQ(Index(), index);
}

TEST_F(IndexTest, SubdirectoriesFollowTheirParentAndEachGetsAnIndexButLinksAndExceptionsAreSkipped)
{
    TempDir elsewhere;
    elsewhere.MakeFile("outside.odt", "x", OLD);
    Docs({"a.odt", "sub/b.odt", "sub/deeper/c.odt", "skip/d.odt"});
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
