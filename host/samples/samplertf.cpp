// Sample documents: an RTF text with its information group and user properties.
#include <fstream>

#include <QString>

#include "host/samples/samplewriter.h"

namespace {

// Text as RTF: ASCII as it is (with \, { and } escaped), everything else as \uN with
// "?" for readers without Unicode.
std::string RtfText(const std::string& utf8)
{
    std::string out;
    for (const QChar c : QString::fromStdString(utf8)) {
        const char16_t u = c.unicode();
        if (u == '\\' || u == '{' || u == '}') {
            out += '\\';
            out += char(u);
        } else if (u == '\n') {
            out += "\\line ";
        } else if (u >= 0x20 && u < 0x80) {
            out += char(u);
        } else {
            out += "\\u" + std::to_string(u < 0x8000 ? int(u) : int(u) - 65536) + "?";
        }
    }
    return out;
}

std::string Field(const char* word, const std::string& value)
{
    return value.empty() ? std::string() : std::string("{\\") + word + " " + RtfText(value) + "}";
}

std::string Stamp(const char* word, const QDateTime& stamp)
{
    const QDate d = stamp.date();
    const QTime t = stamp.time();
    return std::string("{\\") + word + "\\yr" + std::to_string(d.year()) + "\\mo" + std::to_string(d.month()) + "\\dy" +
           std::to_string(d.day()) + "\\hr" + std::to_string(t.hour()) + "\\min" + std::to_string(t.minute()) +
           "\\sec" + std::to_string(t.second()) + "}";
}

std::string Document(const SampleDoc& doc)
{
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss Helvetica;}}\n{\\info";
    rtf += Field("title", doc.title) + Field("subject", doc.topic) + Field("author", doc.author) +
           Field("keywords", JoinedKeywords(doc)) + Field("doccomm", doc.comment) + Field("operator", doc.modifiedBy) +
           Stamp("creatim", doc.created) + Stamp("revtim", doc.modified);
    if (doc.printed)
        rtf += Stamp("printim", *doc.printed);
    rtf += "}\n";
    if (!doc.info.empty()) {
        rtf += "{\\*\\userprops ";
        for (const auto& [name, value] : doc.info)
            rtf += "{\\propname " + RtfText(name) + "}\\proptype30{\\staticval " + RtfText(value) + "}";
        rtf += "}\n";
    }
    rtf += "\\f0\\fs22\n";
    for (const std::string& paragraph : SampleParagraphs(doc.body))
        rtf += RtfText(paragraph) + "\\par\n";
    return rtf + "}\n";
}

}  // namespace

bool WriteSampleRtf(const std::string& path, const SampleDoc& doc, std::string& error)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    const std::string bytes = Document(doc);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    if (out.flush())
        return true;
    error = "Cannot write " + path;
    return false;
}
