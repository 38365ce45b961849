#pragma once
// The order of the user-defined properties in an OLE document summary stream, which
// libgsf does not keep: the names as the section's property table lists them.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Names (UTF-8) of the user-defined properties in file order; empty when the stream has
// no user-defined section or it cannot be read. Bounded by the stream's size.
std::vector<std::string> UserPropertyOrder(std::string_view stream);
// True when property `id` of the stream's first section is a FILETIME of zero, which
// Office writes for "never" and libgsf turns into a date of 2009 (its 32-bit time wraps).
bool ZeroFileTime(std::string_view stream, uint32_t id);
