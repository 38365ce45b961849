#pragma once
// Index file bytes built by hand from the documented layout, so that tests compare the
// program's output with an independent image: an 11-byte header, then 728-byte records.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace indeximage {

// Offsets of the fields within a record.
constexpr size_t RECORD_SIZE = 728;
constexpr size_t HEADER_SIZE = 11;
constexpr size_t NAME = 0, TITLE = 32, TOPIC = 95, HAS_INFO = 158;
constexpr size_t CREATED_DATE = 159, CREATED_TIME = 162, AUTHOR = 165;
constexpr size_t MODIFIED_DATE = 196, MODIFIED_TIME = 199, MODIFIED_BY = 202;
constexpr size_t PRINTED_DATE = 233, PRINTED_TIME = 236, PRINTED_BY = 239;
constexpr size_t COMMENT = 270, KEYWORDS = 525, INFO0 = 652, INFO_STEP = 19;

// "KIDX" NUL, the version (little-endian 16 bits), the character set (32 bits).
std::string Header(uint16_t version = 255, uint32_t charSet = 106, std::string_view magic = std::string_view("KIDX\0", 5));

constexpr size_t RecordOffset(size_t i)
{
    return HEADER_SIZE + RECORD_SIZE * i;
}

// One record; starts as the image of an empty DocInfo with the given name: blanks,
// hasInfo as given, every date "unset" (0, 0, 148) and every time 0.
class Record {
public:
    explicit Record(std::string_view name, bool hasInfo = true);

    // `text` at `offset`, the rest of the `width` bytes blank (text longer than width is cut).
    Record& Text(size_t offset, size_t width, std::string_view text);
    Record& Byte(size_t offset, uint8_t value);
    Record& Triple(size_t offset, uint8_t a, uint8_t b, uint8_t c);

    const std::string& Bytes() const { return bytes_; }

private:
    std::string bytes_;
};

// The record for a DocInfo like TestSource::Sample(name): title = name, author and
// printed by "Tester", created = modified = printed = 2020-01-02 10:00:00.
Record SampleRecord(std::string_view name);

}  // namespace indeximage
