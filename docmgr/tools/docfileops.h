#pragma once
// The file operations behind the copy, new-folder and rename dialogs. None of them
// overwrites or loses a file: each fails when its target exists, and a move that has to
// copy removes the source only after the copy is complete.
#include <string>

namespace docfileops {

// Copies `source` into the directory `targetDir` under its own name; 0 or an errno value.
int CopyInto(const std::string& source, const std::string& targetDir);

// Moves `source` into `targetDir` under its own name: a rename, or where the rename
// fails (another device) a copy followed by removing the source. 0 or an errno value;
// on failure the source is where it was.
int MoveInto(const std::string& source, const std::string& targetDir);
// The same to the path `target`.
int MoveTo(const std::string& source, const std::string& target);

// Whether `name` is a relative path that stays below the directory it is taken from:
// not empty, not absolute, without a ".." component.
bool StaysBelow(const std::string& name);

// The folder `name` (a relative path, separators allowed) below `base`, normalised.
std::string FolderPath(const std::string& base, const std::string& name);

// Creates the folder `name` below `base` with the folders between them. A folder that
// already exists counts as made. 0 or an errno value; EINVAL when `name` would leave `base`.
int MakeFolder(const std::string& base, const std::string& name);

// Whether `name` can name a file within its directory: not empty, no separator, not "."
// or "..".
bool IsPlainName(const std::string& name);

// Gives the file `path` the name `newName` in the same directory, never replacing a file
// of that name. 0 or an errno value; EINVAL when `newName` is not a plain name.
int RenameTo(const std::string& path, const std::string& newName);

}  // namespace docfileops
