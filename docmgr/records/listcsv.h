#pragma once
// The document list as comma-separated values (RFC 4180, UTF-8): the form in which the
// window exports the list and `docmanager --list --format csv` prints it.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "docmgr/records/docrows.h"

class DocGroupConfig;

// Appends one record: fields separated by commas, a field holding a comma, a quote or a
// line break enclosed in quotes with its quotes doubled, the record ended by CR LF.
void AppendCsvRecord(std::string& out, const std::vector<std::string>& fields);

// Hands `record` the fields of the header (the columns' titles), then of each row (the
// texts the list shows), the columns in the order given.
void ForEachCsvRecord(const DocRows& rows, const std::vector<uint16_t>& columns, const DocGroupConfig& group,
                      const std::function<void(const std::vector<std::string>& fields)>& record);

// The header record and one record per row, as ForEachCsvRecord gives them.
std::string FormatCsvList(const DocRows& rows, const std::vector<uint16_t>& columns, const DocGroupConfig& group);
