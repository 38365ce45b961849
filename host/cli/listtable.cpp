// The text and tab-separated forms of the list, built from the cells the window shows.
#include "host/cli/listformat.h"

#include <algorithm>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/records/docfields.h"

namespace {

// A tab or line break inside a cell would break the line and column structure.
std::string OneLine(std::string text)
{
    for (char& c : text)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            c = ' ';
    return text;
}

// Characters (code points) of UTF-8 text: every byte that does not continue a sequence.
size_t CharCount(const std::string& text)
{
    size_t count = 0;
    for (unsigned char c : text)
        if ((c & 0xC0) != 0x80)
            ++count;
    return count;
}

// Titles in the first row, then the cells of every document.
std::vector<std::vector<std::string>> Cells(const DocRows& rows,
                                            const std::vector<uint16_t>& columns,
                                            const DocGroupConfig& group)
{
    std::vector<std::vector<std::string>> table;
    table.reserve(rows.size() + 1);
    std::vector<std::string> header;
    for (uint16_t id : columns)
        header.push_back(OneLine(GetColumnTitle(id, group)));
    table.push_back(std::move(header));
    for (const auto& row : rows) {
        std::vector<std::string> line;
        line.reserve(columns.size());
        for (uint16_t id : columns)
            line.push_back(OneLine(GetFieldString(*row, id)));
        table.push_back(std::move(line));
    }
    return table;
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
    const auto table = Cells(rows, columns, group);
    std::vector<size_t> widths(columns.size(), 0);
    for (const auto& line : table)
        for (size_t c = 0; c < line.size(); ++c)
            widths[c] = std::max(widths[c], CharCount(line[c]));

    std::string out;
    for (const auto& line : table) {
        std::string text;
        for (size_t c = 0; c < line.size(); ++c) {
            if (c > 0)
                text += ' ';
            text += line[c];
            text.append(widths[c] - CharCount(line[c]), ' ');
        }
        // The last column is padded like the others; trailing blanks help no reader.
        text.erase(text.find_last_not_of(' ') + 1);
        out += text;
        out += '\n';
    }
    return out;
}

std::string FormatTsvList(const DocRows& rows, const std::vector<uint16_t>& columns,
                          const DocGroupConfig& group)
{
    std::string out;
    for (const auto& line : Cells(rows, columns, group)) {
        for (size_t c = 0; c < line.size(); ++c) {
            if (c > 0)
                out += '\t';
            out += line[c];
        }
        out += '\n';
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
    case ListFormat::Text:
        break;
    }
    return FormatTextList(rows, columns, group);
}
