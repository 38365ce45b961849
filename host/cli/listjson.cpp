// The JSON form of the list: raw values of every row, keys in a fixed order.
#include "host/cli/listformat.h"

#include <QByteArray>
#include <QString>
#include <cstdio>

#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/validutf8.h"
#include "host/cli/listproblem.h"

namespace {

// Invalid UTF-8 becomes U+FFFD, so the output is always valid JSON.
void AppendString(std::string& out, const std::string& raw)
{
    out += '"';
    for (char ch : ValidUtf8(raw)) {
        const auto c = static_cast<unsigned char>(ch);
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (c < 0x20) {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", unsigned(c));
                out += buf;
            } else {
                out += ch;
            }
        }
    }
    out += '"';
}

void AppendStamp(std::string& out, const Date& date, const Time& time)
{
    const std::string stamp = IsoStamp(date, time);
    if (stamp.empty())
        out += "null";
    else
        AppendString(out, stamp);
}

void AppendKey(std::string& out, const char* key)
{
    out += "    \"";
    out += key;
    out += "\": ";
}

// A name that is not valid UTF-8 comes out with U+FFFD in "path"; its exact bytes follow
// in base64, so that a script can still name the file.
void AppendExactPath(std::string& out, const std::string& path)
{
    if (ValidUtf8(path) == path)
        return;
    AppendKey(out, "pathBase64");
    out += '"' + QByteArray::fromStdString(path).toBase64().toStdString() + "\",\n";
}

void AppendTextField(std::string& out, const char* key, const std::string& value)
{
    AppendKey(out, key);
    AppendString(out, value);
    out += ",\n";
}

void AppendRow(std::string& out, const DocInfo& info, const ListSink::ProblemOf& problemOf)
{
    out += "  {\n";
    AppendTextField(out, "path", info.entry);
    AppendExactPath(out, info.entry);
    AppendTextField(out, "name", fsutil::FileName(info.entry));
    AppendTextField(out, "directory", fsutil::DirName(info.entry));
    AppendKey(out, "size");
    out += std::to_string(info.size) + ",\n";
    AppendTextField(out, "title", info.title);
    AppendTextField(out, "topic", info.topic);
    AppendTextField(out, "author", info.author);
    AppendKey(out, "created");
    AppendStamp(out, info.createdDate, info.createdTime);
    out += ",\n";
    AppendTextField(out, "modifiedBy", info.modifiedBy);
    AppendKey(out, "modified");
    AppendStamp(out, info.modifiedDate, info.modifiedTime);
    out += ",\n";
    AppendTextField(out, "printedBy", info.printedBy);
    AppendKey(out, "printed");
    AppendStamp(out, info.printedDate, info.printedTime);
    out += ",\n";
    AppendTextField(out, "comment", info.comment);
    AppendTextField(out, "keywords", info.keywords);
    AppendKey(out, "problem");
    if (const std::string problem = ProblemOfRow(info, problemOf); problem.empty())
        out += "null";
    else
        AppendString(out, problem);
    out += ",\n";
    AppendKey(out, "info");
    out += '[';
    for (size_t i = 0; i < info.info.size(); ++i) {
        if (i > 0)
            out += ", ";
        AppendString(out, info.info[i]);
    }
    out += "]\n  }";
}

}  // namespace

std::string IsoStamp(const Date& date, const Time& time)
{
    // A damaged index may carry a month or day no calendar has; that is no stamp either.
    if (date.IsUnset() || date.GetMonth() > 12 || date.GetDay() > 31)
        return {};
    char buf[32];
    std::snprintf(buf, sizeof buf, "%04u-%02u-%02uT%02u:%02u:%02u", date.GetYear(), date.GetMonth(), date.GetDay(),
                  time.GetHour() % 100, time.GetMin(), time.GetSec());
    return buf;
}

void WriteJsonList(ListSink& sink, const DocRows& rows)
{
    std::string& out = sink.Text();
    if (rows.empty()) {
        out += "[]\n";
        return;
    }
    out += "[\n";
    for (size_t i = 0; i < rows.size(); ++i) {
        if (i > 0)
            out += ",\n";
        AppendRow(out, *rows[i], sink.Problems());
        sink.RowDone();
    }
    out += "\n]\n";
}
