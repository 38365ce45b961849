#include "tests/support/indeximage.h"

#include <algorithm>

namespace indeximage {

std::string Header(uint16_t version, uint32_t charSet, std::string_view magic)
{
    std::string bytes(magic);
    bytes += char(version & 0xFF);
    bytes += char(version >> 8);
    for (int shift = 0; shift < 32; shift += 8)
        bytes += char((charSet >> shift) & 0xFF);
    return bytes;
}

Record::Record(std::string_view name, bool hasInfo) : bytes_(RECORD_SIZE, ' ')
{
    Text(NAME, 32, name);
    Byte(HAS_INFO, hasInfo ? 1 : 0);
    for (size_t date : {CREATED_DATE, MODIFIED_DATE, PRINTED_DATE})
        Triple(date, 0, 0, 148);
    for (size_t time : {CREATED_TIME, MODIFIED_TIME, PRINTED_TIME})
        Triple(time, 0, 0, 0);
}

Record& Record::Text(size_t offset, size_t width, std::string_view text)
{
    const size_t n = std::min(width, text.size());
    bytes_.replace(offset, n, text.substr(0, n));
    std::fill(bytes_.begin() + long(offset + n), bytes_.begin() + long(offset + width), ' ');
    return *this;
}

Record& Record::Byte(size_t offset, uint8_t value)
{
    bytes_[offset] = char(value);
    return *this;
}

Record& Record::Triple(size_t offset, uint8_t a, uint8_t b, uint8_t c)
{
    return Byte(offset, a).Byte(offset + 1, b).Byte(offset + 2, c);
}

Record SampleRecord(std::string_view name)
{
    Record record(name);
    record.Text(TITLE, 63, name).Text(AUTHOR, 31, "Tester").Text(PRINTED_BY, 31, "Tester");
    // 2 January 2020 (year byte 120), 10:00:00.
    for (size_t date : {CREATED_DATE, MODIFIED_DATE, PRINTED_DATE})
        record.Triple(date, 2, 1, 120);
    for (size_t time : {CREATED_TIME, MODIFIED_TIME, PRINTED_TIME})
        record.Triple(time, 10, 0, 0);
    return record;
}

}  // namespace indeximage
