#pragma once
// The document list as comma-separated values (RFC 4180, UTF-8): the form in which the
// window exports the list and `docmanager --list --format csv` prints it.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "docmgr/records/docinfo.h"

class DocGroupConfig;

// Appends one record: fields separated by commas, a field holding a comma, a quote or a
// line break enclosed in quotes with its quotes doubled, the record ended by CR LF.
void AppendCsvRecord(std::string& out, const std::vector<std::string>& fields);

// A header record of the columns' titles, then one record per row with the texts the
// list shows, the columns in the order given.
std::string FormatCsvList(const std::vector<std::unique_ptr<DocInfo>>& rows,
                          const std::vector<uint16_t>& columns, const DocGroupConfig& group);
