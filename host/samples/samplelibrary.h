#pragma once
// A varied, reproducible library of sample documents: the same seed gives the same
// files on the same machine.
#include <cstdint>
#include <string>

struct SampleLibraryResult {
    int documents = 0;
    int others = 0;
    std::string error;  // set when a file could not be written
};

// Writes `count` documents (ODF text, DOCX, PDF, flat ODF text and RTF in turn) and a few files that are
// not documents into the existing directory `dir`.
SampleLibraryResult WriteSampleLibrary(const std::string& dir, int count, uint32_t seed);
