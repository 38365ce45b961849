// Stamps as documents write them.
#include <gtest/gtest.h>

#include <QTimeZone>

#include "host/readers/metadates.h"
#include "tests/host/readers_fixtures.h"

using namespace readertest;

namespace {

struct Stamp {
    Date date;
    Time time;
};

Stamp Iso(const char* text)
{
    Stamp s;
    EXPECT_TRUE(metadates::ParseIso(text, s.date, s.time)) << text;
    return s;
}

Stamp Pdf(const char* text)
{
    Stamp s;
    EXPECT_TRUE(metadates::ParsePdf(text, s.date, s.time)) << text;
    return s;
}

}  // namespace

TEST(ReadersDates, IsoFormsWithoutZoneStayAsWritten)
{
    EXPECT_EQ(Iso("2024-03-05").date, Date(5, 3, 2024));
    EXPECT_EQ(Iso("2024-03-05").time, Time());
    EXPECT_EQ(Iso("2024-03-05T14:30").time, Time(14, 30));
    EXPECT_EQ(Iso("2024-03-05T14:30:15").time, Time(14, 30, 15));
    EXPECT_EQ(Iso(" 2024-03-05 14:30:15.5 ").time, Time(14, 30, 15, 50));
    // Fractions are cut to hundredths, not rounded.
    EXPECT_EQ(Iso("2024-03-05T14:30:15.123456789").time, Time(14, 30, 15, 12));
    EXPECT_EQ(Iso("2024-03-05T14:30:15,999").time, Time(14, 30, 15, 99));
}

TEST(ReadersDates, IsoZonesBecomeLocalTime)
{
    const QDateTime utc(QDate(2024, 3, 5), QTime(23, 30), QTimeZone::utc());
    EXPECT_EQ(Iso("2024-03-05T23:30:00Z").date, DateOf(utc));
    EXPECT_EQ(Iso("2024-03-05T23:30:00Z").time, TimeOf(utc));
    const QDateTime minus(QDate(2024, 3, 5), QTime(23, 30), QTimeZone(-(5 * 3600 + 30 * 60)));
    for (const char* text : {"2024-03-05T23:30:00-05:30", "2024-03-05T23:30:00-0530"}) {
        EXPECT_EQ(Iso(text).date, DateOf(minus)) << text;
        EXPECT_EQ(Iso(text).time, TimeOf(minus)) << text;
    }
    const QDateTime plus(QDate(2024, 1, 1), QTime(0, 10), QTimeZone(9 * 3600));
    EXPECT_EQ(Iso("2024-01-01T00:10+09").date, DateOf(plus));
    EXPECT_EQ(Iso("2024-01-01T00:10:00.25+09:00").time.Get100Sec(), 25u);
}

TEST(ReadersDates, PdfDates)
{
    EXPECT_EQ(Pdf("D:2001").date, Date(1, 1, 2001));
    EXPECT_EQ(Pdf("D:200102").date, Date(1, 2, 2001));
    EXPECT_EQ(Pdf("D:20010203040506").time, Time(4, 5, 6));
    EXPECT_EQ(Pdf("20010203040506").date, Date(3, 2, 2001));
    const QDateTime zoned(QDate(2001, 2, 3), QTime(4, 5, 6), QTimeZone(-(7 * 3600)));
    for (const char* text : {"D:20010203040506-07'00'", "D:20010203040506-07'00", "D:20010203040506-0700",
                             "D:20010203040506-07"}) {
        EXPECT_EQ(Pdf(text).date, DateOf(zoned)) << text;
        EXPECT_EQ(Pdf(text).time, TimeOf(zoned)) << text;
    }
    const QDateTime utc(QDate(2001, 2, 3), QTime(4, 5, 6), QTimeZone::utc());
    EXPECT_EQ(Pdf("D:20010203040506Z").time, TimeOf(utc));
    EXPECT_EQ(Pdf("D:20010203040506Z00'00'").time, TimeOf(utc));
}

TEST(ReadersDates, InvalidStampsAreRejected)
{
    for (const char* text : {"", "yesterday", "2024-13-01", "2024-02-30", "2024-03-05T25:00", "2024-3-5",
                             "2024-03-05T14:30:15.", "2024-03-05T14:30:15+", "2024-03-05T14:30Zjunk",
                             "0000-01-01"}) {
        Date date;
        Time time;
        EXPECT_FALSE(metadates::ParseIso(text, date, time)) << text;
    }
    for (const char* text : {"", "D:", "D:19a0", "D:2001xx", "D:2001130", "D:20010230", "D:20010203046000",
                             "D:20010203040506+07'00'junk"}) {
        Date date;
        Time time;
        EXPECT_FALSE(metadates::ParsePdf(text, date, time)) << text;
    }
}

TEST(ReadersDates, WrittenStampsParseBackToTheSameLocalTime)
{
    const QDateTime stamp(QDate(2018, 8, 9), QTime(10, 11, 12));
    for (const std::string& text : {metadates::IsoLocal(stamp), metadates::IsoUtc(stamp)}) {
        Stamp s = Iso(text.c_str());
        EXPECT_EQ(s.date, Date(9, 8, 2018)) << text;
        EXPECT_EQ(s.time, Time(10, 11, 12)) << text;
    }
    EXPECT_EQ(metadates::IsoUtc(QDateTime(QDate(2018, 8, 9), QTime(10, 11, 12), QTimeZone::utc())),
              "2018-08-09T10:11:12Z");
    const Stamp pdf = Pdf(metadates::PdfDate(stamp).c_str());
    EXPECT_EQ(pdf.date, Date(9, 8, 2018));
    EXPECT_EQ(pdf.time, Time(10, 11, 12));
}
