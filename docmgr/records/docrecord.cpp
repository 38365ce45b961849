#include "docmgr/records/docrecord.h"

#include <algorithm>
#include <cstring>

#include "docmgr/tools/fsutil.h"

namespace {

constexpr char BLANK = 0x20;

bool IsContinuationByte(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Bytes 1..31 of a comment (line breaks, tabs...) would break the one-line views.
void BlankControlBytes(char* field, size_t width)
{
    // Every byte is written back, so that the loop runs many bytes a step.
    for (size_t i = 0; i < width; ++i) {
        const auto c = static_cast<unsigned char>(field[i]);
        field[i] = c >= 1 && c <= 31 ? BLANK : field[i];
    }
}

}  // namespace

DocRecord::DocRecord(const DocInfo& doc)
{
    WriteString(name, sizeof name, fsutil::FileName(doc.entry));
    WriteString(title, sizeof title, doc.title);
    WriteString(topic, sizeof topic, doc.topic);
    hasInfo = doc.HasInfo() ? 1 : 0;
    WriteDate(createdDate, doc.createdDate);
    WriteTime(createdTime, doc.createdTime);
    WriteString(author, sizeof author, doc.author);
    WriteDate(modifiedDate, doc.modifiedDate);
    WriteTime(modifiedTime, doc.modifiedTime);
    WriteString(modifiedBy, sizeof modifiedBy, doc.modifiedBy);
    WriteDate(printedDate, doc.printedDate);
    WriteTime(printedTime, doc.printedTime);
    WriteString(printedBy, sizeof printedBy, doc.printedBy);
    WriteString(comment, sizeof comment, doc.comment);
    WriteString(keywords, sizeof keywords, doc.keywords);
    for (size_t i = 0; i < doc.info.size(); ++i)
        WriteString(info[i], sizeof info[i], doc.info[i]);
}

// The struct has no padding (every member is a byte or a run of bytes), so its memory
// is the file layout.
void DocRecord::ToBytes(char* out) const
{
    std::memcpy(out, this, SIZE);
}

DocRecord DocRecord::FromBytes(const char* in)
{
    DocRecord record;
    std::memcpy(&record, in, SIZE);
    BlankControlBytes(record.comment, sizeof record.comment);
    return record;
}

void DocRecord::FillDocInfo(DocInfo& out) const
{
    out.title = ReadString(title, sizeof title);
    out.topic = ReadString(topic, sizeof topic);
    out.createdDate = ReadDate(createdDate);
    out.createdTime = ReadTime(createdTime);
    out.author = ReadString(author, sizeof author);
    out.modifiedDate = ReadDate(modifiedDate);
    out.modifiedTime = ReadTime(modifiedTime);
    out.modifiedBy = ReadString(modifiedBy, sizeof modifiedBy);
    out.printedDate = ReadDate(printedDate);
    out.printedTime = ReadTime(printedTime);
    out.printedBy = ReadString(printedBy, sizeof printedBy);
    out.comment = ReadString(comment, sizeof comment);
    out.keywords = ReadString(keywords, sizeof keywords);
    for (size_t i = 0; i < out.info.size(); ++i)
        out.info[i] = ReadString(info[i], sizeof info[i]);
}

RowStore::Fields DocRecord::Fields(std::string_view rowName) const
{
    RowStore::Fields out;
    const std::string_view texts[RowStore::TEXT_COUNT] = {rowName,
                                                          StringView(title, sizeof title),
                                                          StringView(topic, sizeof topic),
                                                          StringView(author, sizeof author),
                                                          StringView(modifiedBy, sizeof modifiedBy),
                                                          StringView(printedBy, sizeof printedBy),
                                                          StringView(comment, sizeof comment),
                                                          StringView(keywords, sizeof keywords),
                                                          StringView(info[0], sizeof info[0]),
                                                          StringView(info[1], sizeof info[1]),
                                                          StringView(info[2], sizeof info[2]),
                                                          StringView(info[3], sizeof info[3])};
    std::copy(std::begin(texts), std::end(texts), out.texts);
    const DocDate* dates[3] = {&createdDate, &modifiedDate, &printedDate};
    const DocTime* times[3] = {&createdTime, &modifiedTime, &printedTime};
    for (int i = 0; i < 3; ++i) {
        out.dates[i] = ReadDate(*dates[i]).GetDate();
        out.times[i] = ReadTime(*times[i]).GetTime();
    }
    return out;
}

void DocRecord::WriteString(char* field, unsigned long width, const std::string& s)
{
    uint16_t count = static_cast<uint16_t>(std::min<unsigned long>(s.size(), width));
    // A field that ends inside a multi-byte character ends before it instead; a UTF-8
    // character has at most three continuation bytes.
    if (count < s.size()) {
        const uint16_t limit = count > 3 ? uint16_t(count - 3) : uint16_t(0);
        uint16_t cut = count;
        while (cut > limit && IsContinuationByte(s[cut]))
            --cut;
        if (!IsContinuationByte(s[cut]))
            count = cut;
    }
    std::memcpy(field, s.data(), count);
    if (count < width)
        std::memset(field + count, BLANK, width - count);
}

void DocRecord::WriteDate(DocDate& out, const Date& date)
{
    const uint32_t number = date.GetDate();
    out.day = static_cast<uint8_t>(number % 100);
    out.month = static_cast<uint8_t>((number / 100) % 100);
    out.year = static_cast<uint8_t>(number / 10000 + 148);
}

void DocRecord::WriteTime(DocTime& out, const Time& time)
{
    const int64_t t = time.GetTime();
    const uint64_t a = static_cast<uint64_t>(t < 0 ? -t : t);
    out.hours = static_cast<uint8_t>(a / 1000000);
    out.minutes = static_cast<uint8_t>((a / 10000) % 100);
    out.seconds = static_cast<uint8_t>((a / 100) % 100);
}

std::string DocRecord::ReadString(const char* field, unsigned short width)
{
    return std::string(StringView(field, width));
}

std::string_view DocRecord::StringView(const char* field, size_t width)
{
    size_t length = width;
    // Most fields are mostly padding: it goes eight bytes at a time.
    constexpr uint64_t BLANKS = 0x2020202020202020u;
    for (uint64_t word = 0; length >= sizeof word; length -= sizeof word) {
        std::memcpy(&word, field + length - sizeof word, sizeof word);
        if (word != BLANKS)
            break;
    }
    while (length > 0 && field[length - 1] == BLANK)
        --length;
    return {field, length};
}

Date DocRecord::ReadDate(const DocDate& date) const
{
    return Date(date.day, date.month, date.year + 1900u);
}

Time DocRecord::ReadTime(const DocTime& time) const
{
    return Time(time.hours, time.minutes, time.seconds, 0);
}
