#include "docmgr/tools/intl.h"

#include <QDate>
#include <QLocale>
#include <memory>

#include "docmgr/tools/stamppattern.h"

namespace intl {
namespace {

// Most short formats carry "yy": a two-digit year is ambiguous in a list of documents.
QString FourDigitYears(QString format)
{
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

// The short date and the time with seconds of the system locale.
struct Patterns {
    Patterns() : locale(QLocale::system()), date(locale, DatePattern()), time(locale, TimePattern()) {}

    QString DatePattern() const { return FourDigitYears(locale.dateFormat(QLocale::ShortFormat)); }

    QString TimePattern() const
    {
        // The short time format drops the seconds in most locales: put them back.
        QString format = locale.timeFormat(QLocale::ShortFormat);
        if (!format.contains(QLatin1Char('s'))) {
            const qsizetype minutes = format.lastIndexOf(QLatin1String("mm"));
            if (minutes >= 0)
                format.insert(minutes + 2, QLatin1String(":ss"));
            else
                format = QStringLiteral("HH:mm:ss");
        }
        return format;
    }

    QLocale locale;
    StampPattern date;
    StampPattern time;
};

std::unique_ptr<Patterns>& Current()
{
    static std::unique_ptr<Patterns> patterns;
    if (!patterns)
        patterns = std::make_unique<Patterns>();
    return patterns;
}

}  // namespace

void ReloadPatterns()
{
    Current() = std::make_unique<Patterns>();
}

std::string ShortDateFormat()
{
    return FourDigitYears(QLocale::system().dateFormat(QLocale::ShortFormat)).toStdString();
}

std::string FormatDate(const Date& date)
{
    if (date.IsUnset())
        return {};
    const int year = int(date.GetYear()), month = int(date.GetMonth()), day = int(date.GetDay());
    // Years beyond what QDate keeps sensible still get a text from their parts.
    if (!QDate::isValid(year, month, day))
        return std::to_string(year) + "-" + std::to_string(month) + "-" + std::to_string(day);
    return Current()->date.FormatDate(year, month, day);
}

std::string FormatTime(const Time& time)
{
    return Current()->time.FormatTime(int(time.GetHour() % 24), int(time.GetMin() % 60), int(time.GetSec() % 60));
}

std::string FormatTime(const Time& time, const Date& date)
{
    return date.IsUnset() ? std::string() : FormatTime(time);
}

}  // namespace intl
