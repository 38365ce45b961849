#pragma once
// The information group of an RTF document ({\info ...}: title, subject, author,
// keywords, doccomm, operator and the creatim, revtim and printim stamps) and the values
// of its user properties ({\*\userprops ...}).
#include <string_view>

#include "docmgr/records/docinfo.h"

// Fills `info` from the RTF text; false when the text does not start like RTF. Reads
// the text once without recursion, keeps every field to a bounded length, and never
// fails on broken input: what could be read stays.
bool ParseRtfInfo(std::string_view rtf, DocInfo& info);
