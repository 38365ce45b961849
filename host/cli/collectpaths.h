#pragma once
// Which directories a listing reads: the working group's active paths, else the start paths.
#include <string>
#include <vector>

class DocGroupConfig;

// The group's paths whose flag character in GUIS is "1", joined with ";" (a missing flag
// counts as off), as the window's path line carries them.
std::string ActivePaths(const DocGroupConfig& group);

// The START_PATH arguments made absolute (keeping a trailing subdirectory marker) and
// joined with ";"; empty when they amount to the placeholder start path.
std::string JoinStartPaths(const std::vector<std::string>& paths);

// The path list a collection reads: the active paths, or the start paths when none is active.
std::string CollectPathList(const DocGroupConfig& group, const std::string& startPaths);
