#include "docmgr/dialogs/columnmove.h"

namespace columnmove {

int SwappedSlot(int upper, int separator)
{
    if (separator == upper || separator == upper + 1)
        return -1;
    // Below the separator a list position is one more than its slot.
    return separator < upper ? upper - 1 : upper;
}

}  // namespace columnmove
