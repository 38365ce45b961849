#include "docmgr/records/docfind.h"

#include <utility>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/textcase.h"

void DocFind::SetRows(std::vector<const DocInfo*> rows, std::vector<uint16_t> columns)
{
    rows_ = std::move(rows);
    columns_ = std::move(columns);
    folded_ = false;
    texts_.clear();
    starts_.clear();
    needle_.clear();
    found_.clear();
}

void DocFind::Fold()
{
    texts_.clear();
    starts_.clear();
    starts_.reserve(rows_.size() + 1);
    std::string scratch;
    for (const DocInfo* row : rows_) {
        starts_.push_back(texts_.size());
        if (!row)
            continue;  // a row on its way out: nothing to find in it
        for (uint16_t column : columns_) {
            textcase::AppendFolded(texts_, FieldView(*row, column, scratch));
            texts_.push_back('\0');
        }
    }
    starts_.push_back(texts_.size());
    folded_ = true;
}

const std::vector<size_t>& DocFind::Find(std::string_view text)
{
    if (!folded_)
        Fold();
    std::string needle;
    textcase::AppendFolded(needle, text);
    // A text holding the last one can only be in the rows the last one was found in.
    const bool narrowing = !needle_.empty() && needle.find(needle_) != std::string::npos;
    needle_ = std::move(needle);
    const std::string_view wanted = needle_;
    if (wanted.empty()) {
        found_.resize(rows_.size());
        for (size_t row = 0; row < found_.size(); ++row)
            found_[row] = row;
        return found_;
    }
    const std::string_view all = texts_;
    if (narrowing) {
        size_t kept = 0;
        for (const size_t row : found_)
            if (all.substr(starts_[row], starts_[row + 1] - starts_[row]).find(wanted) != std::string_view::npos)
                found_[kept++] = row;
        found_.resize(kept);
        return found_;
    }
    // One scan over all texts; a hit names its row, and the scan goes on at the next row.
    found_.clear();
    size_t row = 0;
    for (size_t at = all.find(wanted); at != std::string_view::npos; at = all.find(wanted, starts_[row])) {
        while (starts_[row + 1] <= at)
            ++row;
        found_.push_back(row);
        ++row;
    }
    return found_;
}
