#pragma once
// Whether a file may be taken as a document manager configuration, before anything is
// written to it.
class Config;

// True for a missing or blank file (it gets a first group) and for a file with at least
// one of the configuration's sections. Anything else (a document given by mistake) is
// not ours to change.
bool HoldsDocConfig(const Config& config);
