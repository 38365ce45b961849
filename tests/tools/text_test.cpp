#include <gtest/gtest.h>

#include <QDate>
#include <QTime>

#include "docmgr/tools/datetime.h"
#include "docmgr/tools/intl.h"
#include "docmgr/tools/stamppattern.h"
#include "docmgr/tools/textcase.h"
#include "docmgr/tools/tokens.h"
#include "docmgr/tools/wildcard.h"

TEST(Wildcard, WholeTextsStarsQuestionMarksAndAlternatives)
{
    // "?" is one character, also when it takes several bytes; stars against long texts
    // stay fast and correct.
    const struct { const char* pattern; std::string text; bool matches; } cases[] = {
        {"report", "report", true},     {"report", "reports", false}, {"*report*", "annual report", true},
        {"*", "", true},                {"?", "", false},             {"a*b*c", "aXXbYYbc", true},
        {"a*b*c", "aXXbYYb", false},    {"Caf?", "Café", true},       {"??", "ÜÖ", true},
        {"???", "ÜÖ", false},           {"*a*a*a*a*a*b", std::string(5000, 'a'), false}};
    for (const auto& c : cases)
        EXPECT_EQ(wildcard::Match(c.pattern, c.text), c.matches) << c.pattern << " " << c.text.substr(0, 20);

    EXPECT_TRUE(wildcard::MatchList("*.odt;*.pdf", "x.pdf", ';'));
    EXPECT_FALSE(wildcard::MatchList("*.odt;*.pdf", "x.PDF", ';'));
    EXPECT_TRUE(wildcard::MatchListNoCase("*.odt;*.pdf", "x.PDF", ';'));
    EXPECT_TRUE(wildcard::MatchListNoCase("straße*", "STRASSE 1", ';'));  // ß upper-cases to SS
    EXPECT_TRUE(wildcard::MatchList("alpha,beta", "beta", ','));
    EXPECT_TRUE(wildcard::MatchList(";x", "", ';'));  // an empty alternative matches empty text
}

TEST(TextCase, UpperCasesUnicodeAndRemovesBlanks)
{
    EXPECT_EQ(textcase::ToUpper("off"), "OFF");
    EXPECT_EQ(textcase::ToUpper("grüße"), "GRÜSSE");
    EXPECT_EQ(textcase::ToUpper("/home/zoë"), "/HOME/ZOË");
    EXPECT_EQ(textcase::EraseBlanks(" my  group "), "mygroup");
}

TEST(Tokens, CountGetAndNumbers)
{
    EXPECT_EQ(tokens::Count("", ';'), 0);
    EXPECT_EQ(tokens::Count("a", ';'), 1);
    EXPECT_EQ(tokens::Count("a;;b;", ';'), 4);
    EXPECT_EQ(tokens::Get("a;;b;", 2, ';'), "b");
    EXPECT_EQ(tokens::Get("a;;b;", 3, ';'), "");
    EXPECT_EQ(tokens::Get("a;;b;", 9, ';'), "");
    EXPECT_EQ(tokens::ToNumber("42abc"), 42u);
    EXPECT_EQ(tokens::ToNumber("abc"), 0u);
    EXPECT_EQ(tokens::ToNumber(""), 0u);
    EXPECT_EQ(tokens::ToNumber("99999999999999999999999"), ~0ull);  // saturates, no overflow
    EXPECT_EQ(tokens::ToSigned("-17x"), -17);
    EXPECT_EQ(uint16_t(tokens::ToNumber("65536")), 0);
}

TEST(DateTime, DecimalNumbersAndTexts)
{
    const Date date(31, 12, 1999);
    EXPECT_EQ(date.GetDate(), 19991231u);
    EXPECT_EQ(date.GetYear(), 1999u);
    const Time time(13, 45, 27, 89);
    EXPECT_EQ(time.GetTime(), 13452789);
    EXPECT_EQ(Time(-13452789).GetMin(), 45u);
    EXPECT_TRUE(Date(20480000).IsUnset());
    EXPECT_EQ(intl::FormatDate(Date(20480000)), "");
    EXPECT_EQ(intl::FormatTime(time, Date(0)), "");
    EXPECT_NE(intl::FormatTime(time).find("45"), std::string::npos);
    EXPECT_NE(intl::FormatTime(time).find("27"), std::string::npos);  // seconds are shown
    EXPECT_NE(intl::FormatDate(date).find("1999"), std::string::npos);  // four-digit year
    EXPECT_GE(Date::Today().GetYear(), 2024u);
}

TEST(StampPattern, WritesWhatTheLocaleWrites)
{
    const char* const locales[] = {"C", "de_DE", "en_US", "ru_RU", "fi_FI", "ja_JP", "ar_EG"};
    const char* const datePatterns[] = {"d MMM yyyy", "dd.MM.yy", "M/d/yy", "dddd, d. MMMM yyyy",
                                        "'day' d 'of' MMM, ''yy", "yyyy-MM-dd ddd"};
    const char* const timePatterns[] = {"HH:mm:ss", "h:mm:ss AP", "h:mm:ss ap", "H.mm.ss", "hh:mm:ss A t"};
    const QDate dates[] = {QDate(2021, 3, 7), QDate(1999, 12, 31), QDate(2000, 1, 1), QDate(987, 5, 9)};
    const QTime times[] = {QTime(0, 5, 9), QTime(12, 0, 0), QTime(23, 59, 58), QTime(9, 30, 1)};
    for (const char* name : locales) {
        const QLocale locale(QString::fromLatin1(name));
        for (const char* pattern : datePatterns) {
            const StampPattern compiled(locale, QString::fromLatin1(pattern));
            for (const QDate& date : dates)
                EXPECT_EQ(compiled.FormatDate(date.year(), date.month(), date.day()),
                          locale.toString(date, QString::fromLatin1(pattern)).toStdString())
                    << name << " " << pattern;
        }
        for (const char* pattern : timePatterns) {
            const StampPattern compiled(locale, QString::fromLatin1(pattern));
            for (const QTime& time : times)
                EXPECT_EQ(compiled.FormatTime(time.hour(), time.minute(), time.second()),
                          locale.toString(time, QString::fromLatin1(pattern)).toStdString())
                    << name << " " << pattern;
        }
    }
}
