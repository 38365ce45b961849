// Find as you type: a text in any shown column, case folded, narrowed from the last text.
#include <gtest/gtest.h>

#include "docmgr/records/docfields.h"
#include "docmgr/records/docfind.h"

namespace {
DocInfo Doc(const std::string& path, const std::string& title, const std::string& author)
{
    DocInfo info;
    info.entry = path;
    info.title = title;
    info.author = author;
    info.size = 1234;
    return info;
}
}  // namespace

TEST(DocFind, FindsTheTextInAnyShownColumnIgnoringCaseAlsoBeyondAscii)
{
    const DocInfo rows[] = {Doc("/lib/plan.odt", "Budget Plan", "Ann"), Doc("/lib/memo.docx", "Memo", "ZOË Ünal"),
                            Doc("/lib/zoe.pdf", "Other", "Bob"), Doc("/lib/x.odt", "Planet", "zoë")};
    DocFind find;
    auto add = [&find, &rows](std::vector<uint16_t> columns, size_t count) {
        find.Reset(std::move(columns));
        for (size_t row = 0; row < count; ++row)
            find.AddRow(rows[row]);
    };
    add({COL_NAME, COL_TITLE, COL_AUTHOR, COL_SIZE}, 4);
    using V = std::vector<size_t>;
    EXPECT_EQ(find.Find(""), (V{0, 1, 2, 3}));
    EXPECT_EQ(find.Find("PLAN"), (V{0, 3}));  // title of 0 (and its name), title of 3
    EXPECT_EQ(find.Find("plane"), (V{3}));    // narrowed from "plan"
    EXPECT_EQ(find.Find("zoë"), (V{1, 3}));   // "ZOË" folds to "zoë"; "zoe.pdf" is not "zoë"
    EXPECT_EQ(find.Find("ÜNAL"), (V{1}));
    EXPECT_EQ(find.Find("zo"), (V{1, 2, 3}));      // shorter again: all rows searched
    EXPECT_EQ(find.Find("234"), (V{0, 1, 2, 3}));  // the size column's text
    // Only shown columns count, and a match never runs from one cell into the next.
    EXPECT_EQ(find.Find("memoann"), V{});
    EXPECT_EQ(find.Find("docxmemo"), V{});
    EXPECT_EQ(find.Find("/lib"), V{});  // the name column shows no directory
    add({COL_DIRECTORY}, 2);
    EXPECT_EQ(find.Find("/LIB"), (V{0, 1}));
    EXPECT_EQ(find.Find("plan"), V{});
}
