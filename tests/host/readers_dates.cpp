// Stamps as documents write them: ISO 8601 in packages, D:YYYYMMDDHHmmSS in PDFs.
#include <gtest/gtest.h>

#include <QTimeZone>

#include "host/readers/metadates.h"

namespace {

// The local Date and Time of a stamp.
std::pair<Date, Time> LocalStamp(const QDateTime& stamp)
{
    const QDateTime local = stamp.toLocalTime();
    return {Date(local.date().day(), local.date().month(), local.date().year()),
            Time(local.time().hour(), local.time().minute(), local.time().second(), local.time().msec() / 10)};
}

QDateTime At(QDate date, QTime time, int offsetSeconds)
{
    return QDateTime(date, time, QTimeZone(offsetSeconds));
}

}  // namespace

TEST(ReadersDates, StampsParseToLocalTimeAndInvalidOnesAreRejected)
{
    const QDate d(2024, 3, 5), j(2024, 1, 1), p(2001, 2, 3);
    const QTime t(23, 30), pt(4, 5, 6);
    const int india = -(5 * 3600 + 1800), mountain = -7 * 3600;
    // Without a zone a stamp is local already; with one it becomes local time.
    // Fractions are cut to hundredths, not rounded.
    const struct {
        const char* text;
        bool pdf;
        QDateTime local;
    } cases[] = {
        {"2024-03-05", false, QDateTime(d, QTime(0, 0))},
        {"2024-03-05T14:30", false, QDateTime(d, QTime(14, 30))},
        {"2024-03-05T14:30:15", false, QDateTime(d, QTime(14, 30, 15))},
        {" 2024-03-05 14:30:15.5 ", false, QDateTime(d, QTime(14, 30, 15, 500))},
        {"2024-03-05T14:30:15.123456789", false, QDateTime(d, QTime(14, 30, 15, 120))},
        {"2024-03-05T14:30:15,999", false, QDateTime(d, QTime(14, 30, 15, 990))},
        {"2024-03-05T23:30:00Z", false, At(d, t, 0)},
        {"2024-03-05T23:30:00-05:30", false, At(d, t, india)},
        {"2024-03-05T23:30:00-0530", false, At(d, t, india)},
        {"2024-01-01T00:10+09", false, At(j, QTime(0, 10), 9 * 3600)},
        {"2024-01-01T00:10:00.25+09:00", false, At(j, QTime(0, 10, 0, 250), 9 * 3600)},
        {"D:2001", true, QDateTime(QDate(2001, 1, 1), QTime(0, 0))},
        {"D:200102", true, QDateTime(QDate(2001, 2, 1), QTime(0, 0))},
        {"20010203040506", true, QDateTime(p, pt)},
        {"D:20010203040506-07'00'", true, At(p, pt, mountain)},
        {"D:20010203040506-07'00", true, At(p, pt, mountain)},
        {"D:20010203040506-0700", true, At(p, pt, mountain)},
        {"D:20010203040506-07", true, At(p, pt, mountain)},
        {"D:20010203040506Z", true, At(p, pt, 0)},
        {"D:20010203040506Z00'00'", true, At(p, pt, 0)},
        // Rejected: no local time.
        {"", false, {}},
        {"yesterday", false, {}},
        {"2024-13-01", false, {}},
        {"2024-02-30", false, {}},
        {"2024-03-05T25:00", false, {}},
        {"2024-3-5", false, {}},
        {"2024-03-05T14:30:15.", false, {}},
        {"2024-03-05T14:30:15+", false, {}},
        {"2024-03-05T14:30Zjunk", false, {}},
        {"0000-01-01", false, {}},
        {"", true, {}},
        {"D:", true, {}},
        {"D:19a0", true, {}},
        {"D:2001xx", true, {}},
        {"D:2001130", true, {}},
        {"D:20010230", true, {}},
        {"D:20010203046000", true, {}},
        {"D:20010203040506+07'00'junk", true, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.text) + (c.pdf ? " (PDF)" : " (ISO)"));
        Date date;
        Time time;
        const bool parsed = c.pdf ? metadates::ParsePdf(c.text, date, time) : metadates::ParseIso(c.text, date, time);
        ASSERT_EQ(parsed, c.local.isValid());
        if (parsed) {
            EXPECT_EQ(std::pair(date, time), LocalStamp(c.local));
        }
    }
}
