#pragma once
// Why a listed document shows no information: asked of the readers again for rows that
// hold none, since the index keeps no reason.
#include <string>

#include "docmgr/records/docinfo.h"

// "encrypted", "damaged", "not a zip" or "no information" for a document whose row holds
// no information; empty for every other row.
std::string ProblemOfRow(const DocInfo& info);
