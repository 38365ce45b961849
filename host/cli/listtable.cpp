// The text and tab-separated forms of the list, built from the cells the window shows.
#include "host/cli/listformat.h"

#include <algorithm>
#include <string_view>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/records/docfields.h"
#include "docmgr/records/listcsv.h"

namespace {

// A tab or line break inside a cell would break the line and column structure.
void AppendOneLine(std::string& out, const std::string& text)
{
    const size_t start = out.size();
    out += text;
    for (size_t i = start; i < out.size(); ++i)
        if (static_cast<unsigned char>(out[i]) < 0x20 || out[i] == 0x7F)
            out[i] = ' ';
}

// Characters (code points) of UTF-8 text: every byte that does not continue a sequence.
size_t CharCount(std::string_view text)
{
    size_t count = 0;
    for (unsigned char c : text)
        if ((c & 0xC0) != 0x80)
            ++count;
    return count;
}

// Hands each cell of one line to `emit`: the titles when `info` is null, else the
// document's texts.
template <typename Emit>
void ForEachCell(const DocInfo* info, const std::vector<uint16_t>& columns,
                 const DocGroupConfig& group, Emit emit)
{
    for (size_t c = 0; c < columns.size(); ++c)
        emit(c, info ? GetFieldString(*info, columns[c]) : GetColumnTitle(columns[c], group));
}

}  // namespace

std::vector<uint16_t> ListColumns(const DocGroupConfig& group, const std::vector<uint16_t>& chosen)
{
    if (!chosen.empty())
        return chosen;
    std::vector<uint16_t> columns;
    for (uint16_t id : group.columnId)
        if (id >= 1 && id <= COLUMN_COUNT)
            columns.push_back(id);
    if (columns.empty())
        for (uint16_t id = 1; id <= COLUMN_COUNT; ++id)
            columns.push_back(id);
    return columns;
}

std::string FormatTextList(const DocRows& rows, const std::vector<uint16_t>& columns,
                           const DocGroupConfig& group)
{
    // Every cell once, flat, row after row; the widths need them all before the first line.
    std::vector<std::string> cells;
    cells.reserve((rows.size() + 1) * columns.size());
    std::vector<size_t> widths(columns.size(), 0);
    const auto keep = [&](size_t c, const std::string& text) {
        std::string cell;
        AppendOneLine(cell, text);
        widths[c] = std::max(widths[c], CharCount(cell));
        cells.push_back(std::move(cell));
    };
    ForEachCell(nullptr, columns, group, keep);
    for (const auto& row : rows)
        ForEachCell(row.get(), columns, group, keep);

    std::string out;
    std::string line;
    for (size_t at = 0; at < cells.size(); at += columns.size()) {
        line.clear();
        for (size_t c = 0; c < columns.size(); ++c) {
            if (c > 0)
                line += ' ';
            line += cells[at + c];
            line.append(widths[c] - CharCount(cells[at + c]), ' ');
        }
        // The last column is padded like the others; trailing blanks help no reader.
        line.erase(line.find_last_not_of(' ') + 1);
        out += line;
        out += '\n';
    }
    return out;
}

std::string FormatTsvList(const DocRows& rows, const std::vector<uint16_t>& columns,
                          const DocGroupConfig& group)
{
    std::string out;
    const auto append = [&out](size_t c, const std::string& text) {
        if (c > 0)
            out += '\t';
        AppendOneLine(out, text);
    };
    ForEachCell(nullptr, columns, group, append);
    out += '\n';
    for (size_t r = 0; r < rows.size(); ++r) {
        ForEachCell(rows[r].get(), columns, group, append);
        out += '\n';
        // Sized once from the first row, so that a long list is not copied while it grows.
        if (r == 0)
            out.reserve(out.size() * (rows.size() + 1) * 5 / 4);
    }
    return out;
}

std::string FormatList(ListFormat format, const DocRows& rows,
                       const std::vector<uint16_t>& columns, const DocGroupConfig& group)
{
    switch (format) {
    case ListFormat::Tsv:
        return FormatTsvList(rows, columns, group);
    case ListFormat::Json:
        return FormatJsonList(rows);
    case ListFormat::Csv:
        return FormatCsvList(rows, columns, group);
    case ListFormat::Text:
        break;
    }
    return FormatTextList(rows, columns, group);
}
