#pragma once
// Rows shaped like a real library for the in-memory benchmarks: a directory path, titles of
// a few words with numbers, stamps spread over thirty years, some fields empty, an author
// with letters beyond ASCII.
#include <cstddef>
#include <memory>
#include <random>

#include "docmgr/records/docinfo.h"

// Row `i` of a library drawn from `rng`.
std::unique_ptr<DocInfo> SampleRow(size_t i, std::mt19937& rng);
