// The working group's filter.
#include <gtest/gtest.h>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/records/matches.h"
#include "docmgr/tools/intl.h"

namespace {

class MatchesTest : public ::testing::Test {
protected:
    ImplDocConfig config{nullptr, "*"};
    DocGroupConfig& group = config.WorkingGroup();

    // Condition row r: field, condition and the value of its kind.
    void Row(size_t r, uint16_t field, int condition, const std::string& value = {},
             uint32_t date = 0, int32_t time = 0)
    {
        group.filterField[r] = field;
        group.filterCondition[r] = condition;
        group.filterValue[r] = value;
        group.filterDate[r] = date;
        group.filterTime[r] = uint32_t(time);
    }

    bool Passes(const DocInfo& doc) const { return Matches(doc, config); }
};

DocInfo Doc(const std::string& title, uint32_t size = 10)
{
    DocInfo info;
    info.entry = "/docs/" + title + ".odt";
    info.title = title;
    info.size = size;
    return info;
}

}  // namespace

TEST_F(MatchesTest, TextFiltersCaseAndWhatPutsAFilterInForce)
{
    ASSERT_EQ(group.filterField[0], NO_COLUMN);
    group.filterSensitive = true;
    group.filterFiles = "*.odt";
    EXPECT_FALSE(FilterInForce(group)) << "case flag and pattern alone";
    EXPECT_TRUE(Passes(Doc("anything")));

    group.filterTitle = "Plan";
    EXPECT_TRUE(FilterInForce(group));
    EXPECT_TRUE(Passes(Doc("Plan")));
    EXPECT_FALSE(Passes(Doc("plan")));
    group.filterSensitive = false;
    EXPECT_TRUE(Passes(Doc("PLAN")));
    EXPECT_FALSE(Passes(Doc("Plans")));
    group.filterTitle = "*\xC3\xA9t\xC3\xA9*";  // upper-casing is not ASCII-only
    EXPECT_TRUE(Passes(Doc("Un \xC3\x89T\xC3\x89 chaud")));

    // Keywords: alternatives split at ";", else at ",".
    group.filterTitle.clear();
    DocInfo doc = Doc("x");
    doc.keywords = "beta";
    group.filterKeywords = "alpha;beta";
    EXPECT_TRUE(Passes(doc));
    group.filterKeywords = "alpha,beta";
    EXPECT_TRUE(Passes(doc));
    doc.keywords = "alpha beta";
    EXPECT_FALSE(Passes(doc));
}

TEST_F(MatchesTest, ConditionKinds)
{
    // Size with the wildcard condition is equality: the star is lost.
    Row(0, 2, 6, "1*");
    EXPECT_TRUE(Passes(Doc("x", 1)));
    EXPECT_FALSE(Passes(Doc("x", 10)));

    // Never modified (date 0) is less than any date.
    DocInfo doc = Doc("x");
    Row(0, 8, 4, {}, 19990101);
    EXPECT_TRUE(Passes(doc));
    doc.modifiedDate = Date(1, 1, 1999);
    EXPECT_FALSE(Passes(doc));

    // Field 20 and above, and 0, compare the printed time, signed.
    doc.printedTime = Time(-int32_t(Time(1, 0, 0).GetTime()));
    Row(0, 20, 4, {}, 0, 0);
    EXPECT_TRUE(Passes(doc));
    Row(0, 0, 3, {}, 0, -1000000);
    EXPECT_FALSE(Passes(doc));

    // Text rows compare whole texts byte-wise; condition 6 takes one pattern.
    Row(0, 3, 5, "abc");
    EXPECT_TRUE(Passes(Doc("abcd")));
    EXPECT_FALSE(Passes(Doc("ABC"))) << "case is ignored unless respected";
    Row(0, 3, 2, "b");
    EXPECT_TRUE(Passes(Doc("B")));
    EXPECT_FALSE(Passes(Doc("c")));
    Row(0, 1, 6, "*.ODT;x");
    EXPECT_FALSE(Passes(Doc("name")));

    // Dates and times with the wildcard condition use the locale's texts.
    doc.modifiedDate = Date(24, 12, 2021);
    Row(0, 8, 6, intl::FormatDate(doc.modifiedDate));
    EXPECT_TRUE(Passes(doc));
    doc.createdTime = Time(12, 0, 0);
    Row(0, 6, 6, intl::FormatTime(Time(12, 0, 0)));
    EXPECT_TRUE(Passes(doc));
}

TEST_F(MatchesTest, TwoRowsTakeTheirLinkFromTheSortSettings)
{
    Row(0, 3, 0, "A");
    Row(1, 3, 0, "B");
    group.filterLink = {1, 0};  // AND, but two rows are OR-ed...
    group.sortColumnId = 3;
    EXPECT_TRUE(Passes(Doc("A")));
    EXPECT_TRUE(Passes(Doc("B")));
    EXPECT_FALSE(Passes(Doc("C")));

    group.sortColumnId = 1;  // ...unless sorted by file name descending
    group.sortAscending = false;
    EXPECT_FALSE(Passes(Doc("A")));
    Row(1, 2, 0, "10");
    EXPECT_TRUE(Passes(Doc("A", 10)));

    group.filterLink = {7, 0};  // any non-zero link makes two rows
    EXPECT_FALSE(Passes(Doc("A", 11)));
}

TEST_F(MatchesTest, ThreeRowsBindAndTighterThanOr)
{
    Row(0, 3, 0, "A");
    Row(1, 2, 0, "1");
    Row(2, 7, 0, "Z");
    auto doc = [](const std::string& title, uint32_t size, const std::string& author) {
        DocInfo info = Doc(title, size);
        info.author = author;
        return info;
    };

    group.filterLink = {2, 1};  // r0 OR (r1 AND r2)
    EXPECT_TRUE(Passes(doc("A", 0, "")));
    EXPECT_FALSE(Passes(doc("B", 1, "")));
    EXPECT_TRUE(Passes(doc("B", 1, "Z")));

    group.filterLink = {1, 2};  // (r0 AND r1) OR r2
    EXPECT_FALSE(Passes(doc("A", 0, "")));
    EXPECT_TRUE(Passes(doc("A", 1, "")));
    EXPECT_TRUE(Passes(doc("B", 0, "Z")));

    group.filterLink = {1, 1};
    EXPECT_FALSE(Passes(doc("A", 1, "")));
    EXPECT_TRUE(Passes(doc("A", 1, "Z")));

    group.filterLink = {3, 3};
    EXPECT_TRUE(Passes(doc("B", 0, "Z")));
    EXPECT_FALSE(Passes(doc("B", 0, "Y")));
}

TEST_F(MatchesTest, ConditionAboveSixKeepsThePreviousResult)
{
    Row(0, 3, 9, "A");
    EXPECT_FALSE(Passes(Doc("A"))) << "a first row has nothing to keep";

    Row(0, 3, 0, "A");
    Row(1, 3, 7, "B");
    Row(2, 3, 8, "C");
    group.filterLink = {1, 1};
    EXPECT_TRUE(Passes(Doc("A")));
    EXPECT_FALSE(Passes(Doc("B")));
}
