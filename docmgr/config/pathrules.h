#pragma once
// The subdirectory marker at the end of a path entry ("/**", STR_SUBDIR_MARKER).
#include <string>

// True when `path` ends in the marker.
bool TestSub(const std::string& path);
// `path` with the marker, added once.
std::string WithSub(const std::string& path);
// `path` without its trailing marker.
std::string WoutSub(const std::string& path);
