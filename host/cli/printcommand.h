#pragma once
// Handing documents to the system's print command.
#include <string>
#include <vector>

// The system's print command: "lp", else "lpr", searched in PATH; empty when there is none.
std::string FindPrintCommand();

// Runs the print command on the documents and waits for it. Returns 0, or 1 with `error`
// set when there is no print command or it failed.
int PrintDocuments(const std::vector<std::string>& paths, std::string& error);
