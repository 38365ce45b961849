// The page plan of the printed list: rows per page and the columns that fit across it.
#include <gtest/gtest.h>

#include "docmgr/print/pageplan.h"

using pageplan::PageRows;

TEST(PagePlan, EachPageHoldsAllButTheHeaderLine)
{
    const struct { unsigned page; long lines; long rows; std::optional<PageRows> expected; } table[] = {
        {1, 10, 0, PageRows{0, 0}},    // an empty list prints its header
        {2, 10, 0, std::nullopt},
        {1, 10, 5, PageRows{0, 5}},
        {1, 10, 20, PageRows{0, 9}},
        {2, 10, 20, PageRows{9, 18}},
        {3, 10, 20, PageRows{18, 20}},
        {4, 10, 20, std::nullopt},
        {3, 10, 18, PageRows{18, 18}},  // an exact fit ends with a header-only page
        {4, 10, 18, std::nullopt},
        {0, 10, 5, std::nullopt},       // pages count from 1
        {1, 1, 5, std::nullopt},        // no room for a row
        {1, 0, 5, std::nullopt},
    };
    for (const auto& row : table)
        EXPECT_EQ(pageplan::RowsOnPage(row.page, row.lines, row.rows), row.expected)
            << "page " << row.page << ", " << row.lines << " lines, " << row.rows << " rows";
}

TEST(PagePlan, AColumnFitsWhenItsWidestTextEndsOnThePage)
{
    const std::map<uint16_t, uint16_t> widths{{1, 10}, {3, 5}, {7, 20}};
    const struct { long charWidth, pageWidth; int fitting; } table[] = {{1, 35, 3}, {1, 34, 2}, {1, 15, 2}, {2, 29, 1}, {2, 19, 0}, {1, 1000, 3}};
    for (const auto& row : table)
        EXPECT_EQ(pageplan::FittingColumns(widths, row.charWidth, row.pageWidth), row.fitting)
            << row.charWidth << " x " << row.pageWidth;
    EXPECT_EQ(pageplan::FittingColumns({}, 1, 10), 0);
}
