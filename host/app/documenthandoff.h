#pragma once
// What the host does with the documents chosen in the window: open them, list their
// paths, or print them.
#include <string>
#include <vector>

// Copies each document into a new folder under the temporary directory and makes the
// copy read-only. Returns the copies' paths; a document that cannot be copied is left out
// and named in `error`.
std::vector<std::string> MakeReadOnlyCopies(const std::vector<std::string>& paths,
                                            std::string& error);

// Opens each document with the desktop's default application. Returns 0, or 1 when a
// document could not be opened (named in `error`).
int OpenDocuments(const std::vector<std::string>& paths, std::string& error);

// The system's print command: "lp", else "lpr"; empty when there is none.
std::string FindPrintCommand();

// Hands the documents to the print command. Returns 0, or 1 with `error` set when there
// is no print command or it failed.
int PrintDocuments(const std::vector<std::string>& paths, std::string& error);
