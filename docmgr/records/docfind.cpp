#include "docmgr/records/docfind.h"

#include <utility>

#include "docmgr/records/docfields.h"
#include "docmgr/tools/textcase.h"

void DocFind::Reset(std::vector<uint16_t> columns)
{
    columns_ = std::move(columns);
    texts_.clear();
    starts_.clear();
    needle_.clear();
    found_.clear();
}

void DocFind::AddRow(const DocInfo& info)
{
    starts_.push_back(texts_.size());
    for (uint16_t column : columns_) {
        textcase::AppendFolded(texts_, FieldView(info, column, scratch_));
        texts_.push_back('\0');
    }
    needle_.clear();  // the last answer does not cover this row
}

const std::vector<size_t>& DocFind::Find(std::string_view text)
{
    std::string needle;
    textcase::AppendFolded(needle, text);
    // A text holding the last one can only be in the rows the last one was found in.
    const bool narrowing = !needle_.empty() && needle.find(needle_) != std::string::npos;
    needle_ = std::move(needle);
    const std::string_view wanted = needle_;
    if (wanted.empty()) {
        found_.resize(starts_.size());
        for (size_t row = 0; row < found_.size(); ++row)
            found_[row] = row;
        return found_;
    }
    const std::string_view all = texts_;
    auto end = [&](size_t row) { return row + 1 < starts_.size() ? starts_[row + 1] : all.size(); };
    if (narrowing) {
        size_t kept = 0;
        for (const size_t row : found_)
            if (all.substr(starts_[row], end(row) - starts_[row]).find(wanted) != std::string_view::npos)
                found_[kept++] = row;
        found_.resize(kept);
        return found_;
    }
    // One scan over all texts; a hit names its row, and the scan goes on at the next row.
    found_.clear();
    size_t row = 0;
    for (size_t at = all.find(wanted); at != std::string_view::npos; at = all.find(wanted, end(row - 1))) {
        while (end(row) <= at)
            ++row;
        found_.push_back(row);
        ++row;
    }
    return found_;
}
