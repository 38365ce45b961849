#pragma once
// What a column shows for a document, and the column titles; shared by the list view,
// list printing and the headless list.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"

class DocGroupConfig;

// Column ids 1..20.
enum DocColumn : uint16_t {
    COL_NAME = 1, COL_SIZE, COL_TITLE, COL_TOPIC, COL_CREATED_DATE, COL_CREATED_TIME,
    COL_AUTHOR, COL_MODIFIED_DATE, COL_MODIFIED_TIME, COL_MODIFIED_BY, COL_PRINTED_DATE,
    COL_PRINTED_TIME, COL_PRINTED_BY, COL_COMMENT, COL_KEYWORDS, COL_INFO0, COL_INFO1,
    COL_INFO2, COL_INFO3, COL_DIRECTORY
};
constexpr uint16_t COLUMN_COUNT = 20;

// Text of one cell: "---" for 8/9 when their texts equal 5/6, and for 11..13 when the
// printed stamp equals the created stamp; empty for ids outside 1..20.
std::string GetFieldString(const DocInfo& info, uint16_t columnId);
// Title of a column: strings 15700.. for the fixed columns, the group's info captions
// for 16..19; empty for ids outside 1..20.
std::string GetColumnTitle(uint16_t columnId, const DocGroupConfig& group);
