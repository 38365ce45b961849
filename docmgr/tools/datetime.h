#pragma once
// Calendar date and clock time as the decimal numbers the index file and the
// configuration store: a date is year*10000 + month*100 + day, a time is
// hours*1000000 + minutes*10000 + seconds*100 + hundredths (it may be negative).
#include <cstdint>

#include <docmgr/docmgr_export.h>

class DOCMGR_EXPORT Date {
public:
    Date() = default;
    explicit Date(uint32_t number) : number_(number) {}
    Date(unsigned day, unsigned month, unsigned year)
        : number_((year % 10000) * 10000 + (month % 100) * 100 + day % 100)
    {}

    static Date Today();

    uint32_t GetDate() const { return number_; }
    unsigned GetDay() const { return number_ % 100; }
    unsigned GetMonth() const { return (number_ / 100) % 100; }
    unsigned GetYear() const { return number_ / 10000; }
    // A date without month or day: never set, or lost on its way through a file.
    bool IsUnset() const { return GetMonth() == 0 || GetDay() == 0; }

    friend bool operator==(const Date&, const Date&) = default;

private:
    uint32_t number_ = 0;
};

class DOCMGR_EXPORT Time {
public:
    Time() = default;
    explicit Time(int32_t number) : number_(number) {}
    Time(unsigned hours, unsigned minutes, unsigned seconds = 0, unsigned hundredths = 0)
        : number_(int32_t(hours * 1000000 + minutes * 10000 + seconds * 100 + hundredths))
    {}

    static Time Now();

    int32_t GetTime() const { return number_; }
    unsigned GetHour() const { return unsigned(Abs() / 1000000); }
    unsigned GetMin() const { return unsigned((Abs() / 10000) % 100); }
    unsigned GetSec() const { return unsigned((Abs() / 100) % 100); }
    unsigned Get100Sec() const { return unsigned(Abs() % 100); }

    friend bool operator==(const Time&, const Time&) = default;

private:
    int64_t Abs() const { return number_ < 0 ? -int64_t(number_) : int64_t(number_); }
    int32_t number_ = 0;
};
