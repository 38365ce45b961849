#include "docmgr/tools/stamppattern.h"

#include <QDate>
#include <QTime>
#include <optional>

namespace {

// Length of the run of `c` starting at `i`.
qsizetype RunLength(const QString& pattern, qsizetype i)
{
    qsizetype n = 1;
    while (i + n < pattern.size() && pattern[i + n] == pattern[i])
        ++n;
    return n;
}

// The text quoted from `i` on, which is moved past the closing quote; '' stands for one
// quote.
std::string QuotedText(const QString& pattern, qsizetype& i)
{
    std::string text;
    qsizetype j = i + 1;
    for (; j < pattern.size(); ++j) {
        if (pattern[j] == u'\'') {
            if (j + 1 < pattern.size() && pattern[j + 1] == u'\'') {
                text += '\'';
                ++j;
                continue;
            }
            break;
        }
        text += QString(pattern[j]).toStdString();
    }
    if (j == i + 1 && j < pattern.size())
        text.assign(1, '\'');
    i = j + 1;
    return text;
}

void AppendNumber(std::string& out, int value, int width)
{
    if (width == 2 && value < 10)
        out += '0';
    out += std::to_string(value);
}

}  // namespace

StampPattern::StampPattern(const QLocale& locale, const QString& pattern)
    : locale_(locale), pattern_(pattern), am_(locale.amText().toUpper().toStdString()),
      pm_(locale.pmText().toUpper().toStdString()), amLower_(locale.amText().toLower().toStdString()),
      pmLower_(locale.pmText().toLower().toStdString())
{
    // Digits other than 0-9 are the locale's business.
    viaLocale_ = locale.zeroDigit() != QStringLiteral("0");
    ReadNames(locale);
    if (!viaLocale_)
        Parse(pattern);
}

void StampPattern::ReadNames(const QLocale& locale)
{
    for (int form = 0; form < 2; ++form) {
        const auto format = form == 0 ? QLocale::ShortFormat : QLocale::LongFormat;
        for (int month = 1; month <= 12; ++month)
            monthNames_[form][month] = locale.monthName(month, format).toStdString();
        for (int day = 1; day <= 7; ++day)
            dayNames_[form][day] = locale.dayName(day, format).toStdString();
    }
}

std::optional<StampPattern::Field> StampPattern::RunField(QChar c, qsizetype run)
{
    if (c == u'd' && run <= 4)
        return run <= 2 ? Field::Day : Field::DayName;
    if (c == u'M' && run <= 4)
        return run <= 2 ? Field::Month : Field::MonthName;
    if (c == u'y' && (run == 2 || run == 4))
        return run == 2 ? Field::Year2 : Field::Year4;
    if (c == u'H' && run <= 2)
        return Field::Hour24;
    if (c == u'h' && run <= 2)
        return Field::Hour12;
    if (c == u'm' && run <= 2)
        return Field::Minute;
    if (c == u's' && run <= 2)
        return Field::Second;
    return std::nullopt;
}

void StampPattern::Parse(const QString& pattern)
{
    bool twelveHour = false;
    for (qsizetype i = 0; i < pattern.size() && !viaLocale_;) {
        const QChar c = pattern[i];
        const qsizetype run = RunLength(pattern, i);
        if (c == u'\'') {
            parts_.push_back({Field::Text, 0, QuotedText(pattern, i)});
        } else if (const std::optional<Field> field = RunField(c, run)) {
            parts_.push_back({*field, int(run), {}});
            i += run;
        } else if ((c == u'A' || c == u'a') && i + 1 < pattern.size() &&
                   (pattern[i + 1] == u'P' || pattern[i + 1] == u'p')) {
            parts_.push_back({Field::AmPm, 0, {}, c == u'a'});
            twelveHour = true;
            i += 2;
        } else if (c.isLetter()) {
            viaLocale_ = true;  // names, zones, milliseconds, odd widths: the locale knows
        } else {
            parts_.push_back({Field::Text, 0, QString(c).toStdString()});
            ++i;
        }
    }
    // As in Qt, "h" counts the hours of a twelve-hour clock only beside AM/PM.
    if (!twelveHour)
        for (Part& part : parts_)
            if (part.field == Field::Hour12)
                part.field = Field::Hour24;
}

void StampPattern::Append(std::string& out, const Part& part, int year, int month, int day, int hour, int minute,
                          int second) const
{
    switch (part.field) {
    case Field::Text: out += part.text; break;
    case Field::Day: AppendNumber(out, day, part.width); break;
    case Field::Month: AppendNumber(out, month, part.width); break;
    case Field::MonthName: out += monthNames_[part.width - 3][month]; break;
    case Field::DayName: out += dayNames_[part.width - 3][QDate(year, month, day).dayOfWeek()]; break;
    case Field::Year2: AppendNumber(out, year % 100, 2); break;
    case Field::Year4: {
        const std::string digits = std::to_string(year);
        out.append(digits.size() < 4 ? 4 - digits.size() : 0, '0');
        out += digits;
        break;
    }
    case Field::Hour24: AppendNumber(out, hour, part.width); break;
    case Field::Hour12: AppendNumber(out, hour % 12 == 0 ? 12 : hour % 12, part.width); break;
    case Field::Minute: AppendNumber(out, minute, part.width); break;
    case Field::Second: AppendNumber(out, second, part.width); break;
    case Field::AmPm: {
        if (part.lower)
            out += hour < 12 ? amLower_ : pmLower_;
        else
            out += hour < 12 ? am_ : pm_;
        break;
    }
    }
}

std::string StampPattern::FormatDate(int year, int month, int day) const
{
    if (viaLocale_)
        return locale_.toString(QDate(year, month, day), pattern_).toStdString();
    std::string out;
    for (const Part& part : parts_)
        Append(out, part, year, month, day, 0, 0, 0);
    return out;
}

std::string StampPattern::FormatTime(int hour, int minute, int second) const
{
    if (viaLocale_)
        return locale_.toString(QTime(hour, minute, second), pattern_).toStdString();
    std::string out;
    for (const Part& part : parts_)
        Append(out, part, 0, 0, 0, hour, minute, second);
    return out;
}
