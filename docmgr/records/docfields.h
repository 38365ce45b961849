#pragma once
// What a column shows for a document, and the column titles; shared by the list view,
// list printing and the headless list.
#include <cstdint>
#include <string>
#include <string_view>

#include "docmgr/records/docinfo.h"

class DocGroupConfig;

// Column ids 1..20.
enum DocColumn : uint16_t {
    COL_NAME = 1,
    COL_SIZE,
    COL_TITLE,
    COL_TOPIC,
    COL_CREATED_DATE,
    COL_CREATED_TIME,
    COL_AUTHOR,
    COL_MODIFIED_DATE,
    COL_MODIFIED_TIME,
    COL_MODIFIED_BY,
    COL_PRINTED_DATE,
    COL_PRINTED_TIME,
    COL_PRINTED_BY,
    COL_COMMENT,
    COL_KEYWORDS,
    COL_INFO0,
    COL_INFO1,
    COL_INFO2,
    COL_INFO3,
    COL_DIRECTORY
};
constexpr uint16_t COLUMN_COUNT = 20;

// What a column holds; the cell texts, the sort and the filter all read a column through
// these, so the column-to-field mapping lives here alone.
enum class FieldKind { None, Name, Size, Text, Date, Time, Directory };
// None for ids outside 1..20.
FieldKind KindOfColumn(uint16_t columnId);
// The stored text of a Text column (3, 4, 7, 10, 13..19).
const std::string& TextField(const DocInfo& info, uint16_t columnId);
// The date of column 5, 8 or 11, and the time of 6, 9 or 12; any other id gives the
// printed stamp.
const Date& DateField(const DocInfo& info, uint16_t columnId);
const Time& TimeField(const DocInfo& info, uint16_t columnId);

// Text of one cell: "---" for 8/9 when their texts equal 5/6, and for 11..13 when the
// printed stamp equals the created stamp; empty for ids outside 1..20.
std::string GetFieldString(const DocInfo& info, uint16_t columnId);
// The same text without a copy where the record holds it: a view into `info`, or into
// `scratch` for the texts made on the way (sizes, stamps, directories). Valid while both are.
std::string_view FieldView(const DocInfo& info, uint16_t columnId, std::string& scratch);
// Title of a column: strings STR_COL_NAME.. for the fixed columns, the group's info captions
// for 16..19; empty for ids outside 1..20.
std::string GetColumnTitle(uint16_t columnId, const DocGroupConfig& group);
