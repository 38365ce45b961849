#pragma once
// The collected rows as text for standard output: a padded table, tab-separated values
// or a JSON array.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"
#include "host/cli/commandline.h"

class DocGroupConfig;

using DocRows = std::vector<std::unique_ptr<DocInfo>>;

// The columns to show: `chosen` when given, else the group's slots in slot order without
// the slots that hold no column id (all 20 ids when no slot holds one).
std::vector<uint16_t> ListColumns(const DocGroupConfig& group, const std::vector<uint16_t>& chosen);

// A header of column titles and one line per row, each column as wide as its widest text
// in characters, one blank between columns.
std::string FormatTextList(const DocRows& rows, const std::vector<uint16_t>& columns,
                           const DocGroupConfig& group);
// A header line of titles and one line per row, texts separated by tabs.
std::string FormatTsvList(const DocRows& rows, const std::vector<uint16_t>& columns,
                          const DocGroupConfig& group);
// One array of objects in list order with the raw values of every row.
std::string FormatJsonList(const DocRows& rows);

std::string FormatList(ListFormat format, const DocRows& rows,
                       const std::vector<uint16_t>& columns, const DocGroupConfig& group);

// "YYYY-MM-DDTHH:MM:SS", or empty when the date is unset (or no calendar date).
std::string IsoStamp(const Date& date, const Time& time);
