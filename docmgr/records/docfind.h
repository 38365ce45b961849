#pragma once
// Find as you type: which rows show a text in any of their shown columns, ignoring case.
// The window's find bar and `docmanager --list --find` both ask this, so both match alike.
//
// The cell texts of all rows are folded once into one buffer; a keystroke then scans that
// buffer without allocating, and a text that extends the last one searches only the rows
// the last one found.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "docmgr/records/docinfo.h"

class DocFind {
public:
    // The rows to search, in list order, and the ids of the columns that show them. The
    // folded texts are made by the first Find after this.
    void SetRows(std::vector<const DocInfo*> rows, std::vector<uint16_t> columns);
    size_t RowCount() const { return rows_.size(); }

    // Positions (ascending, into the rows given) of the rows whose text in some column
    // holds `text`, case folded; every row for an empty text. Valid until the next call.
    const std::vector<size_t>& Find(std::string_view text);

private:
    void Fold();

    std::vector<const DocInfo*> rows_;
    std::vector<uint16_t> columns_;
    // The folded cell texts of all rows, each cell ended by '\0', which no typed text holds,
    // so that a match never runs from one cell into the next.
    std::string texts_;
    std::vector<size_t> starts_;  // where each row's texts begin, and the end
    bool folded_ = false;
    std::string needle_;  // the folded text of the last Find
    std::vector<size_t> found_;
};
