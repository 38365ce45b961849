#pragma once
// A Qt date or time pattern ("dd.MM.yyyy", "h:mm:ss AP") taken apart once, so that a list
// of thousands of stamps is formatted without asking the locale or parsing the pattern
// for each one.
#include <QLocale>
#include <QString>
#include <optional>
#include <string>
#include <vector>

class StampPattern {
public:
    StampPattern(const QLocale& locale, const QString& pattern);

    // Text of a valid calendar date (year, month 1-12, day 1-31).
    std::string FormatDate(int year, int month, int day) const;
    // Text of a time of day (hour 0-23).
    std::string FormatTime(int hour, int minute, int second) const;

private:
    enum class Field { Text, Day, DayName, Month, MonthName, Year2, Year4, Hour24, Hour12, Minute, Second, AmPm };
    struct Part {
        Field field;
        int width;           // 1: no leading zero, 2: two digits; names: 3 short, 4 long
        std::string text;    // Field::Text
        bool lower = false;  // Field::AmPm in lower case ("ap"), else upper case
    };
    // The month and day names of both lengths.
    void ReadNames(const QLocale& locale);
    // Takes `pattern` apart into parts_, or sets viaLocale_ for what only the locale knows.
    void Parse(const QString& pattern);
    // The field a run of `run` letters `c` stands for; none when it stands for no part.
    static std::optional<Field> RunField(QChar c, qsizetype run);
    void Append(std::string& out, const Part& part, int year, int month, int day, int hour, int minute,
                int second) const;

    QLocale locale_;
    QString pattern_;
    std::vector<Part> parts_;
    // A pattern with time zones, milliseconds or foreign digits goes to the locale.
    bool viaLocale_ = false;
    std::string am_, pm_, amLower_, pmLower_;
    // Names of months 1-12 and days 1-7 (Monday first), short [0] and long [1].
    std::string monthNames_[2][13];
    std::string dayNames_[2][8];
};
