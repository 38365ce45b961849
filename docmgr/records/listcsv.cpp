#include "docmgr/records/listcsv.h"

#include "docmgr/records/docfields.h"
#include "docmgr/tools/validutf8.h"

void AppendCsvRecord(std::string& out, const std::vector<std::string>& fields)
{
    for (size_t i = 0; i < fields.size(); ++i) {
        if (i > 0)
            out += ',';
        const std::string field = ValidUtf8(fields[i]);
        if (field.find_first_of(",\"\r\n") == std::string::npos) {
            out += field;
            continue;
        }
        out += '"';
        for (char c : field) {
            if (c == '"')
                out += '"';
            out += c;
        }
        out += '"';
    }
    out += "\r\n";
}

void ForEachCsvRecord(const DocRows& rows, const std::vector<uint16_t>& columns, const DocGroupConfig& group,
                      const std::function<void(const std::vector<std::string>& fields)>& record)
{
    std::vector<std::string> fields(columns.size());
    for (size_t c = 0; c < columns.size(); ++c)
        fields[c] = GetColumnTitle(columns[c], group);
    record(fields);
    for (const auto& row : rows) {
        for (size_t c = 0; c < columns.size(); ++c)
            fields[c] = GetFieldString(*row, columns[c]);
        record(fields);
    }
}

std::string FormatCsvList(const DocRows& rows, const std::vector<uint16_t>& columns, const DocGroupConfig& group)
{
    std::string out;
    ForEachCsvRecord(rows, columns, group,
                     [&out](const std::vector<std::string>& fields) { AppendCsvRecord(out, fields); });
    return out;
}
