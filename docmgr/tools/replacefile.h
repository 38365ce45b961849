#pragma once
// Replacing a file whole: the new contents go to a temporary file beside it, which is
// flushed to disk and renamed over the old one. A reader sees the old file or the new
// one, never a mixture, and a failure (a full disk, a crash) leaves the old one in place.
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace replacefile {

// The temporary file's name: `target` with this text and a unique ending appended.
// Listings that must not see such files skip names starting with the target's name and it.
inline constexpr std::string_view TEMP_INFIX = ".tmp-";

// Writes `contents` to a new file beside `target` and renames it over `target`. The new
// file keeps the old one's permissions; with `mtimeNs` >= 0 it gets that modification
// time. Returns 0 or an errno value; on failure no temporary file is left behind.
int Replace(const std::string& target, std::string_view contents, int64_t mtimeNs = -1);

// The same with contents made piece by piece: `fill` hands each piece to `put`, so that
// large contents need not be held whole. A failed `put` makes the rest no-ops.
using PutPiece = std::function<void(std::string_view piece)>;
int ReplaceWith(const std::string& target, const std::function<void(const PutPiece& put)>& fill,
                int64_t mtimeNs = -1);

// True when `name` is a temporary file of Replace for the file named `targetName` whose
// process no longer runs (it was killed before the rename): nothing will ever use it.
bool IsAbandonedTemp(const std::string& name, const std::string& targetName);

}  // namespace replacefile
