#pragma once
// The fixed 728-byte image of a DocInfo in a directory index file.
#include <cstdint>
#include <string>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/rowstore.h"

// Day, month, year - 1900 (modulo 256).
struct DocDate {
    uint8_t day = 0;
    uint8_t month = 0;
    uint8_t year = 0;
};

// Hours, minutes, seconds of the absolute time; hundredths and sign are not kept.
struct DocTime {
    uint8_t hours = 0;
    uint8_t minutes = 0;
    uint8_t seconds = 0;
};

struct DocRecord {
    static constexpr size_t SIZE = 728;
    static constexpr size_t NAME_LEN = 32;

    DocRecord() = default;
    // Name = last component of entry cut to 32 bytes; hasInfo = size != NO_DOC_INFO.
    explicit DocRecord(const DocInfo& info);

    // The 728 bytes in file order, and back; FromBytes replaces control bytes (1..31)
    // of the comment by blanks before anything is read.
    void ToBytes(char* out) const;
    static DocRecord FromBytes(const char* in);

    // Fields 3..19 of `info` from this record (entry and size are the reader's).
    void FillDocInfo(DocInfo& info) const;
    // The same as views into this record, with `name` as the row's name (folder and size
    // are the reader's).
    RowStore::Fields Fields(std::string_view name) const;

    // Copies up to `width` bytes of s (never cutting a UTF-8 sequence) and pads with blanks.
    static void WriteString(char* field, unsigned long width, const std::string& s);
    static void WriteDate(DocDate& out, const Date& date);
    static void WriteTime(DocTime& out, const Time& time);
    // The field's bytes with trailing blanks removed.
    static std::string ReadString(const char* field, unsigned short width);
    static std::string_view StringView(const char* field, size_t width);
    // The name field of the record whose 728 bytes start at `in`.
    static std::string ReadName(const char* in) { return ReadString(in, NAME_LEN); }
    static std::string_view NameView(const char* in) { return StringView(in, NAME_LEN); }
    Date ReadDate(const DocDate& date) const;
    Time ReadTime(const DocTime& time) const;

    char name[32]{};
    char title[63]{};
    char topic[63]{};
    uint8_t hasInfo = 0;
    DocDate createdDate;
    DocTime createdTime;
    char author[31]{};
    DocDate modifiedDate;
    DocTime modifiedTime;
    char modifiedBy[31]{};
    DocDate printedDate;
    DocTime printedTime;
    char printedBy[31]{};
    char comment[255]{};
    char keywords[127]{};
    char info[4][19]{};
};
static_assert(sizeof(DocRecord) == DocRecord::SIZE, "index records are 728 bytes");
