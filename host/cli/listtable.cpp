// The text and tab-separated forms of the list, built from the cells the window shows.
#include "host/cli/listformat.h"

#include <algorithm>
#include <string_view>

#include "docmgr/config/docgroupconfig.h"
#include "docmgr/records/docfields.h"
#include "docmgr/records/listcsv.h"
#include "docmgr/tools/validutf8.h"

namespace {

// A tab or line break inside a cell would break the line and column structure; the
// output is UTF-8 whatever bytes a name or an index record holds.
void AppendOneLine(std::string& out, std::string_view text)
{
    const size_t start = out.size();
    AppendValidUtf8(out, text);
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
void ForEachCell(const DocInfo* info, const std::vector<uint16_t>& columns, const DocGroupConfig& group, Emit emit)
{
    std::string scratch;
    for (size_t c = 0; c < columns.size(); ++c) {
        if (info)
            emit(c, FieldView(*info, columns[c], scratch));
        else
            emit(c, std::string_view(scratch = GetColumnTitle(columns[c], group)));
    }
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

void WriteTextList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                   const DocGroupConfig& group)
{
    // The widths need every cell before the first line: the cells are made twice rather
    // than all kept at once.
    std::vector<size_t> widths(columns.size(), 0);
    std::string cell;
    const auto measure = [&](size_t c, std::string_view text) {
        cell.clear();
        AppendOneLine(cell, text);
        widths[c] = std::max(widths[c], CharCount(cell));
    };
    ForEachCell(nullptr, columns, group, measure);
    for (const auto& row : rows)
        ForEachCell(row, columns, group, measure);

    std::string& out = sink.Text();
    const auto append = [&](size_t c, std::string_view text) {
        if (c > 0)
            out += ' ';
        const size_t start = out.size();
        AppendOneLine(out, text);
        out.append(widths[c] - CharCount(std::string_view(out).substr(start)), ' ');
    };
    const auto line = [&](const DocInfo* info) {
        ForEachCell(info, columns, group, append);
        // The last column is padded like the others; trailing blanks help no reader.
        out.erase(out.find_last_not_of(' ') + 1);
        out += '\n';
        sink.RowDone();
    };
    line(nullptr);
    for (const auto& row : rows)
        line(row);
}

void WriteTsvList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                  const DocGroupConfig& group)
{
    std::string& out = sink.Text();
    const auto append = [&out](size_t c, std::string_view text) {
        if (c > 0)
            out += '\t';
        AppendOneLine(out, text);
    };
    ForEachCell(nullptr, columns, group, append);
    out += '\n';
    for (const auto& row : rows) {
        ForEachCell(row, columns, group, append);
        out += '\n';
        sink.RowDone();
    }
}

void WriteCsvList(ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
                  const DocGroupConfig& group)
{
    ForEachCsvRecord(rows, columns, group, [&sink](const std::vector<std::string>& fields) {
        AppendCsvRecord(sink.Text(), fields);
        sink.RowDone();
    });
}

void WriteList(ListFormat format, ListSink& sink, const DocRows& rows, const std::vector<uint16_t>& columns,
               const DocGroupConfig& group)
{
    switch (format) {
    case ListFormat::Tsv: return WriteTsvList(sink, rows, columns, group);
    case ListFormat::Json: return WriteJsonList(sink, rows);
    case ListFormat::Csv: return WriteCsvList(sink, rows, columns, group);
    case ListFormat::Text: break;
    }
    WriteTextList(sink, rows, columns, group);
}
