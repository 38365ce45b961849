#pragma once
// Why a listed document shows no information: the index keeps no reason, so it is asked of
// the cache or of the readers again for rows that hold none.
#include <functional>
#include <string>

#include "docmgr/records/docinfo.h"
#include "host/readers/readproblem.h"

// "encrypted", "damaged", "not a zip" or "no information" for a document whose row holds
// no information; empty for every other row. `problemOf` answers when given (the cache);
// else the document is read.
std::string ProblemOfRow(const DocInfo& info, const std::function<ReadProblem(const std::string&)>& problemOf = {});
