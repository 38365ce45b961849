#pragma once
// Where the files that come with docmanager lie: beside this program in the build tree,
// or at their installed place relative to it, wherever the prefix is.
#include <string>

// The window program (installed in libexec/docmanager).
std::string WindowProgram();
// The module with the PDF and legacy Office readers (installed in lib/docmanager).
std::string PdfOleModule();
