#pragma once
// Find as you type: which rows show a text in any of their shown columns, ignoring case.
// The window's find bar and `docmanager --list --find` both ask this, so both match alike.
//
// The cell texts of all rows are folded once into one buffer as the rows are added; a
// keystroke then scans that buffer without allocating, and a text that extends the last
// one searches only the rows the last one found.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "docmgr/records/docinfo.h"

class DocFind {
public:
    // Starts over, for rows shown in the columns with these ids.
    void Reset(std::vector<uint16_t> columns);
    // Adds the next row in list order; its texts are folded now, so `info` need not
    // outlive the call.
    void AddRow(const DocInfo& info);
    size_t RowCount() const { return starts_.size(); }

    // Positions (ascending, in the order added) of the rows whose text in some column
    // holds `text`, case folded; every row for an empty text. Valid until the next call.
    const std::vector<size_t>& Find(std::string_view text);

private:
    std::vector<uint16_t> columns_;
    // The folded cell texts of all rows, each cell ended by '\0', which no typed text holds,
    // so that a match never runs from one cell into the next.
    std::string texts_;
    std::vector<size_t> starts_;  // where each row's texts begin
    std::string scratch_;
    std::string needle_;  // the folded text of the last Find
    std::vector<size_t> found_;
};
