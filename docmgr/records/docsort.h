#pragma once
// Ordering of rows by one column; the column and direction are process-wide while a
// sort runs, as the comparison sees only the two rows.
#include <cstdint>
#include <memory>
#include <vector>

#include "docmgr/records/docinfo.h"

// Sorts with an unstable sort; equal keys end up in no defined order.
void SortRows(std::vector<std::unique_ptr<DocInfo>>& rows, uint16_t columnId, bool ascending);
