#include "host/readers/metadates.h"

#include <QTimeZone>

namespace metadates {

namespace {

// The fields of a parsed stamp before it becomes local time.
struct Fields {
    int year = 0, month = 1, day = 1;
    int hour = 0, minute = 0, second = 0, hundredths = 0;
    bool zoned = false;
    int offsetSeconds = 0;
};

// Reads exactly `count` digits at `pos`.
bool Digits(std::string_view s, size_t& pos, size_t count, int& value)
{
    if (pos + count > s.size())
        return false;
    int v = 0;
    for (size_t i = 0; i < count; ++i) {
        const char c = s[pos + i];
        if (c < '0' || c > '9')
            return false;
        v = v * 10 + (c - '0');
    }
    value = v;
    pos += count;
    return true;
}

bool AtDigit(std::string_view s, size_t pos)
{
    return pos < s.size() && s[pos] >= '0' && s[pos] <= '9';
}

std::string_view Trim(std::string_view s)
{
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t' || s.front() == '\r' || s.front() == '\n'))
        s.remove_prefix(1);
    while (!s.empty() &&
           (s.back() == ' ' || s.back() == '\t' || s.back() == '\r' || s.back() == '\n' || s.back() == '\0'))
        s.remove_suffix(1);
    return s;
}

bool ToLocal(const Fields& f, Date& date, Time& time)
{
    const QDate d(f.year, f.month, f.day);
    const QTime t(f.hour, f.minute, f.second);
    if (f.year < 1 || !d.isValid() || !t.isValid())
        return false;
    if (!f.zoned) {
        date = Date(unsigned(f.day), unsigned(f.month), unsigned(f.year));
        time = Time(unsigned(f.hour), unsigned(f.minute), unsigned(f.second), unsigned(f.hundredths));
        return true;
    }
    if (f.offsetSeconds < -16 * 3600 || f.offsetSeconds > 16 * 3600)
        return false;
    const QDateTime local = QDateTime(d, t, QTimeZone(f.offsetSeconds)).toLocalTime();
    if (!local.isValid())
        return false;
    ToStamp(local, date, time);
    time = Time(time.GetHour(), time.GetMin(), time.GetSec(), unsigned(f.hundredths));
    return true;
}

}  // namespace

bool ParseIso(std::string_view text, Date& date, Time& time)
{
    const std::string_view s = Trim(text);
    Fields f;
    size_t pos = 0;
    if (!Digits(s, pos, 4, f.year) || pos >= s.size() || s[pos++] != '-' || !Digits(s, pos, 2, f.month) ||
        pos >= s.size() || s[pos++] != '-' || !Digits(s, pos, 2, f.day))
        return false;
    if (pos < s.size() && (s[pos] == 'T' || s[pos] == 't' || s[pos] == ' ')) {
        ++pos;
        if (!Digits(s, pos, 2, f.hour) || pos >= s.size() || s[pos++] != ':' || !Digits(s, pos, 2, f.minute))
            return false;
        if (pos < s.size() && s[pos] == ':') {
            ++pos;
            if (!Digits(s, pos, 2, f.second))
                return false;
            if (pos < s.size() && (s[pos] == '.' || s[pos] == ',')) {
                ++pos;
                if (!AtDigit(s, pos))
                    return false;
                int scale = 10;
                for (; AtDigit(s, pos); ++pos) {
                    f.hundredths += (s[pos] - '0') * scale;
                    scale /= 10;
                }
            }
        }
        if (pos < s.size() && (s[pos] == 'Z' || s[pos] == 'z')) {
            ++pos;
            f.zoned = true;
        } else if (pos < s.size() && (s[pos] == '+' || s[pos] == '-')) {
            const int sign = s[pos++] == '-' ? -1 : 1;
            int hours = 0, minutes = 0;
            if (!Digits(s, pos, 2, hours))
                return false;
            if (pos < s.size() && s[pos] == ':')
                ++pos;
            if (AtDigit(s, pos) && !Digits(s, pos, 2, minutes))
                return false;
            f.zoned = true;
            f.offsetSeconds = sign * (hours * 3600 + minutes * 60);
        }
    }
    if (pos != s.size())
        return false;
    return ToLocal(f, date, time);
}

bool ParsePdf(std::string_view text, Date& date, Time& time)
{
    std::string_view s = Trim(text);
    if (s.substr(0, 2) == "D:")
        s.remove_prefix(2);
    Fields f;
    size_t pos = 0;
    if (!Digits(s, pos, 4, f.year))
        return false;
    // Each further part is optional, but only in order.
    int* parts[] = {&f.month, &f.day, &f.hour, &f.minute, &f.second};
    for (int* part : parts) {
        if (!AtDigit(s, pos))
            break;
        if (!Digits(s, pos, 2, *part))
            return false;
    }
    if (pos < s.size() && (s[pos] == 'Z' || s[pos] == 'z')) {
        // "Z" may be followed by a redundant "00'00'".
        ++pos;
        f.zoned = true;
        while (pos < s.size() && (AtDigit(s, pos) || s[pos] == '\''))
            ++pos;
    } else if (pos < s.size() && (s[pos] == '+' || s[pos] == '-')) {
        const int sign = s[pos++] == '-' ? -1 : 1;
        int hours = 0, minutes = 0;
        if (!Digits(s, pos, 2, hours))
            return false;
        if (pos < s.size() && s[pos] == '\'')
            ++pos;
        if (AtDigit(s, pos) && !Digits(s, pos, 2, minutes))
            return false;
        if (pos < s.size() && s[pos] == '\'')
            ++pos;
        f.zoned = true;
        f.offsetSeconds = sign * (hours * 3600 + minutes * 60);
    }
    if (pos != s.size())
        return false;
    return ToLocal(f, date, time);
}

std::string IsoLocal(const QDateTime& stamp)
{
    return stamp.toLocalTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")).toStdString();
}

std::string IsoUtc(const QDateTime& stamp)
{
    return stamp.toUTC().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ssZ")).toStdString();
}

std::string PdfDate(const QDateTime& stamp)
{
    const QDateTime local = stamp.toLocalTime();
    const int offset = local.offsetFromUtc();
    const int minutes = (offset < 0 ? -offset : offset) / 60;
    const QString zone = offset == 0 ? QStringLiteral("Z")
                                     : QStringLiteral("%1%2'%3'")
                                           .arg(offset < 0 ? '-' : '+')
                                           .arg(minutes / 60, 2, 10, QLatin1Char('0'))
                                           .arg(minutes % 60, 2, 10, QLatin1Char('0'));
    return (QStringLiteral("D:") + local.toString(QStringLiteral("yyyyMMddHHmmss")) + zone).toStdString();
}

void ToStamp(const QDateTime& stamp, Date& date, Time& time)
{
    const QDate d = stamp.date();
    const QTime t = stamp.time();
    date = Date(unsigned(d.day()), unsigned(d.month()), unsigned(d.year()));
    time = Time(unsigned(t.hour()), unsigned(t.minute()), unsigned(t.second()), unsigned(t.msec() / 10));
}

}  // namespace metadates
