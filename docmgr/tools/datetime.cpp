#include "docmgr/tools/datetime.h"

#include <QDateTime>

Date Date::Today()
{
    const QDate today = QDate::currentDate();
    return Date(unsigned(today.day()), unsigned(today.month()), unsigned(today.year()));
}

Time Time::Now()
{
    const QTime now = QTime::currentTime();
    return Time(unsigned(now.hour()), unsigned(now.minute()), unsigned(now.second()), unsigned(now.msec() / 10));
}
