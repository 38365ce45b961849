#pragma once
// Ordering of rows by one column; the column and direction are process-wide while a
// sort runs, as the comparison sees only the two rows.
#include <cstdint>
#include <vector>

#include "docmgr/records/rowstore.h"

// Sorts the rows (places in `store`) with an unstable sort; equal keys end up in no
// defined order.
void SortRows(const RowStore& store, std::vector<RowStore::Id>& rows, uint16_t columnId, bool ascending);
