#include "docmgr/print/pageplan.h"

#include <algorithm>

namespace pageplan {

std::optional<PageRows> RowsOnPage(unsigned page, long lines, long rowCount)
{
    if (page == 0 || lines <= 1)
        return std::nullopt;
    const long first = long(page - 1) * (lines - 1);
    const long end = std::min(first + lines - 1, rowCount);
    if (first > end)
        return std::nullopt;
    return PageRows{first, end};
}

int FittingColumns(const std::map<uint16_t, uint16_t>& widths, long charWidth, long pageWidth)
{
    int fitting = 0;
    long x = 0;
    for (const auto& [id, width] : widths) {
        x += long(width) * charWidth;
        if (x > pageWidth)
            break;
        ++fitting;
    }
    return fitting;
}

}  // namespace pageplan
