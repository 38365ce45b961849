#pragma once
// What reading a document gave, as one blob of the cache: one column to fetch and decode
// instead of one a field, which is most of a cache hit's cost.
#include <string>
#include <string_view>

#include "host/readers/docreader.h"

// The blob of `reading` (its `entry` path is not kept).
std::string PackReading(const DocReading& reading);
// The reading `packed` holds; false when the blob is cut or not of this form.
bool UnpackReading(std::string_view packed, DocReading& reading);
