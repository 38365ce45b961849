#include "docmgr/tools/intl.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace intl {

std::string ShortDateFormat()
{
    // Most short formats carry "yy": a two-digit year is ambiguous in a list of documents.
    QString format = QLocale::system().dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format.toStdString();
}

std::string FormatDate(const Date& date)
{
    if (date.IsUnset())
        return {};
    // Years beyond what QDate keeps sensible still get a text from their parts.
    const QDate qdate(int(date.GetYear()), int(date.GetMonth()), int(date.GetDay()));
    if (!qdate.isValid())
        return std::to_string(date.GetYear()) + "-" + std::to_string(date.GetMonth()) + "-" +
               std::to_string(date.GetDay());
    return QLocale::system().toString(qdate, QString::fromStdString(ShortDateFormat())).toStdString();
}

std::string FormatTime(const Time& time)
{
    const QTime qtime(int(time.GetHour() % 24), int(time.GetMin() % 60), int(time.GetSec() % 60));
    // The short time format drops the seconds in most locales: put them back.
    QString format = QLocale::system().timeFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1Char('s'))) {
        const qsizetype minutes = format.lastIndexOf(QLatin1String("mm"));
        if (minutes >= 0)
            format.insert(minutes + 2, QLatin1String(":ss"));
        else
            format = QStringLiteral("HH:mm:ss");
    }
    return QLocale::system().toString(qtime, format).toStdString();
}

std::string FormatTime(const Time& time, const Date& date)
{
    return date.IsUnset() ? std::string() : FormatTime(time);
}

}  // namespace intl
