// Collecting a path list into the row list, and walking the selected rows.
#include "tests/records/indextestbase.h"

using Names = std::vector<std::string>;

TEST_F(IndexTest, CollectTakesExistingDirectoriesInPathListOrder)
{
    Doc("one/a.odt");
    Doc("two/b.odt");
    Doc("two/sub/c.odt");
    Doc("file.odt");
    ASSERT_TRUE(rows.NeedsCollect());

    rows.CollectFiles(dir.PathOf("two") + "/**;" + dir.PathOf("missing") + ";;" +
                      dir.PathOf("file.odt") + ";" + dir.PathOf("one"));
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
    Doc("a.odt");
    Doc("b.odt");
    Doc("c.odt");
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
