#pragma once
// A group's path list as the paths dialog edits it: the shown entries (flag "1") in the
// list, the others kept aside with their flags and written back after the shown ones.
#include <string>
#include <vector>

namespace pathentries {

struct Entries {
    std::vector<std::string> shown;
    std::vector<std::string> hidden;
    std::string hiddenFlags;  // one flag character per hidden entry
};

// Splits the ";"-separated `paths` by their flags in `guis`; a missing flag is "0".
Entries Split(const std::string& paths, const std::string& guis);

// The paths and flags to store: the shown entries with flag "1", then the hidden ones, each
// with the first hidden entry's flag (kept so on purpose).
struct Stored {
    std::string paths;
    std::string guis;
};
Stored Join(const Entries& entries);

}  // namespace pathentries
