#pragma once
// Moves in the columns dialog's list: the column slots and, at the frozen count, a
// separator line that is no column. Exchanging two neighbouring entries exchanges the
// column ids of two slots, unless one of the entries is the separator.

namespace columnmove {

// The first of the two slots whose column ids change places after the list entries at
// `upper` and `upper + 1` were exchanged, with the separator now at `separator`; -1 when
// the separator itself moved (only the frozen count changes).
int SwappedSlot(int upper, int separator);

}  // namespace columnmove
