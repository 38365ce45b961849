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
    void Row(size_t r, uint16_t field, int condition, const std::string& value = {}, uint32_t date = 0, int32_t time = 0)
    {
        group.filterField[r] = field;
        group.filterCondition[r] = condition;
        group.filterValue[r] = value;
        group.filterDate[r] = date;
        group.filterTime[r] = uint32_t(time);
    }

    bool Passes(const DocInfo& doc) const { return Matches(doc, config); }
};

DocInfo Doc(const std::string& title, uint32_t size = 10, const std::string& author = {})
{
    DocInfo info;
    info.entry = "/docs/" + title + ".odt";
    info.title = title;
    info.size = size;
    info.author = author;
    return info;
}

}  // namespace

TEST_F(MatchesTest, TextFiltersCaseWhatPutsAFilterInForceAndTheConditionKinds)
{
    ASSERT_EQ(group.filterField[0], NO_COLUMN);
    group.filterSensitive = true;
    group.filterFiles = "*.odt";
    EXPECT_FALSE(FilterInForce(group)) << "case flag and pattern alone";
    EXPECT_TRUE(Passes(Doc("anything")));
    group.filterTitle = "Plan";
    EXPECT_TRUE(FilterInForce(group));

    // Upper-casing is not ASCII-only; keywords are alternatives split at ";", else at ",".
    const struct {
        bool sensitive;
        const char* title;
        const char* keywords;
        const char* docTitle;
        const char* docKeywords;
        bool passes;
    } cases[] = {{true, "Plan", "", "Plan", "", true},
                 {true, "Plan", "", "plan", "", false},
                 {false, "Plan", "", "PLAN", "", true},
                 {false, "Plan", "", "Plans", "", false},
                 {false, "*\xC3\xA9t\xC3\xA9*", "", "Un \xC3\x89T\xC3\x89 chaud", "", true},
                 {false, "", "alpha;beta", "x", "beta", true},
                 {false, "", "alpha,beta", "x", "beta", true},
                 {false, "", "alpha,beta", "x", "alpha beta", false}};
    for (const auto& c : cases) {
        group.filterSensitive = c.sensitive;
        group.filterTitle = c.title;
        group.filterKeywords = c.keywords;
        DocInfo doc = Doc(c.docTitle);
        doc.keywords = c.docKeywords;
        EXPECT_EQ(Passes(doc), c.passes) << c.title << c.keywords << " / " << c.docTitle << c.docKeywords;
    }

    group.filterKeywords.clear();  // the condition kinds alone
    DocInfo stamped = Doc("x");
    stamped.modifiedDate = Date(24, 12, 2021);
    stamped.createdTime = Time(12, 0, 0);
    stamped.printedTime = Time(-int32_t(Time(1, 0, 0).GetTime()));
    DocInfo never = Doc("x");  // never modified: date 0
    const struct {
        const char* what;
        uint16_t field;
        int condition;
        std::string value;
        uint32_t date;
        int32_t time;
        DocInfo doc;
        bool passes;
    } kinds[] = {
        {"size, the star is lost: equality", 2, 6, "1*", 0, 0, Doc("x", 1), true},
        {"size, the star is lost", 2, 6, "1*", 0, 0, Doc("x", 10), false},
        {"date 0 is less than any date", 8, 4, {}, 19990101, 0, never, true},
        {"a later date", 8, 4, {}, 19990101, 0, stamped, false},
        {"field 20 compares the printed time, signed", 20, 4, {}, 0, 0, stamped, true},
        {"field 0 compares the printed time", 0, 3, {}, 0, -1000000, stamped, false},
        {"whole texts", 3, 5, "abc", 0, 0, Doc("abcd"), true},
        {"case is ignored unless respected", 3, 5, "abc", 0, 0, Doc("ABC"), false},
        {"byte-wise order", 3, 2, "b", 0, 0, Doc("B"), true},
        {"byte-wise order", 3, 2, "b", 0, 0, Doc("c"), false},
        {"condition 6 takes one pattern", 1, 6, "*.ODT;x", 0, 0, Doc("name"), false},
        {"file name by pattern", 1, 6, "*.ODT", 0, 0, Doc("name"), true},
        {"date by the locale's text", 8, 6, intl::FormatDate(stamped.modifiedDate), 0, 0, stamped, true},
        {"time by the locale's text", 6, 6, intl::FormatTime(Time(12, 0, 0)), 0, 0, stamped, true},
    };
    for (const auto& c : kinds) {
        Row(0, c.field, c.condition, c.value, c.date, c.time);
        EXPECT_EQ(Passes(c.doc), c.passes) << c.what;
    }
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

TEST_F(MatchesTest, ThreeRowsBindAndTighterThanOrAndConditionsAboveSixKeepTheResult)
{
    Row(0, 3, 0, "A");
    Row(1, 2, 0, "1");
    Row(2, 7, 0, "Z");
    // Links 1 = AND, others OR: {2, 1} is r0 OR (r1 AND r2), {1, 2} is (r0 AND r1) OR r2.
    const struct {
        std::array<int32_t, 2> link;
        DocInfo doc;
        bool passes;
    } cases[] = {
        {{2, 1}, Doc("A", 0), true},       {{2, 1}, Doc("B", 1), false},     {{2, 1}, Doc("B", 1, "Z"), true},
        {{1, 2}, Doc("A", 0), false},      {{1, 2}, Doc("A", 1), true},      {{1, 2}, Doc("B", 0, "Z"), true},
        {{1, 1}, Doc("A", 1), false},      {{1, 1}, Doc("A", 1, "Z"), true}, {{3, 3}, Doc("B", 0, "Z"), true},
        {{3, 3}, Doc("B", 0, "Y"), false},
    };
    for (const auto& c : cases) {
        group.filterLink = c.link;
        EXPECT_EQ(Passes(c.doc), c.passes) << c.link[0] << "," << c.link[1] << " " << c.doc.title << c.doc.size << c.doc.author;
    }

    // A condition above six keeps the previous result; a first row has none to keep.
    Row(1, 3, 7, "B");
    Row(2, 3, 8, "C");
    group.filterLink = {1, 1};
    EXPECT_TRUE(Passes(Doc("A")));
    EXPECT_FALSE(Passes(Doc("B")));
    Row(0, 3, 9, "A");
    EXPECT_FALSE(Passes(Doc("A")));
}
