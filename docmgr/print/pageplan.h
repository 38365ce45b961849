#pragma once
// The page plan of the printed list, apart from any printer: which rows go on a page and
// how many columns fit across it. Every page starts with a header line of column titles.
#include <cstdint>
#include <map>
#include <optional>

namespace pageplan {

// The rows [first, end) of the list printed on one page.
struct PageRows {
    long first = 0;
    long end = 0;
    bool operator==(const PageRows&) const = default;
};

// The rows on page `page` (from 1) of a list of `rowCount` rows when `lines` lines fit on a
// page, the header taking one of them; nothing when there is no such page or no room for a
// row. A list that fills its pages exactly still gets a last page with the header only.
std::optional<PageRows> RowsOnPage(unsigned page, long lines, long rowCount);

// How many of the columns (id -> width in characters, in printing order) fit across
// `pageWidth` when a character is `charWidth` wide: a column fits when its widest text ends
// on the page.
int FittingColumns(const std::map<uint16_t, uint16_t>& widths, long charWidth, long pageWidth);

}  // namespace pageplan
