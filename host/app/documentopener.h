#pragma once
// Opening the documents chosen in the window with the desktop's default application.
#include <string>
#include <vector>

// Opens each document with the desktop's default application. Returns 0, or 1 when a
// document could not be opened (named in `error`).
int OpenDocuments(const std::vector<std::string>& paths, std::string& error);
