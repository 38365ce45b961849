#pragma once
// Whether a document passes the working group's filter.
#include "docmgr/records/docinfo.h"

class ImplDocConfig;
class DocGroupConfig;


bool Matches(const DocInfo& info, const ImplDocConfig& config);
// The filter is in force: a text filter is set or the first condition row is used.
bool FilterInForce(const DocGroupConfig& group);
