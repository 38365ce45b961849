#pragma once
// Date and time texts in the user's locale (short date, time with seconds).
#include <string>
#include "docmgr/tools/datetime.h"

namespace intl {
// Takes the system locale's patterns afresh; they are taken once and kept until then.
void ReloadPatterns();
// The system locale's short date format with the year in four digits.
std::string ShortDateFormat();
// Short date of the system locale, four-digit year; empty for an unset date (month or day 0).
std::string FormatDate(const Date& date);
// Time with seconds, without hundredths; empty when `date` is unset.
std::string FormatTime(const Time& time, const Date& date);
// Time with seconds, without hundredths, whatever the date.
std::string FormatTime(const Time& time);
}  // namespace intl
