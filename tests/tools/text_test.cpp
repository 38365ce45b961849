#include <gtest/gtest.h>

#include <QDate>
#include <QTime>

#include "docmgr/tools/stamppattern.h"
#include "docmgr/tools/wildcard.h"

TEST(Text, WildcardsMatchWholeTextsAndStampPatternsWriteWhatTheLocaleWrites)
{
    // "?" is one character, also when it takes several bytes; stars against long texts
    // stay fast and correct.
    const struct {
        const char* pattern;
        std::string text;
        bool matches;
    } cases[] = {{"report", "report", true},
                 {"report", "reports", false},
                 {"*report*", "annual report", true},
                 {"*", "", true},
                 {"?", "", false},
                 {"a*b*c", "aXXbYYbc", true},
                 {"a*b*c", "aXXbYYb", false},
                 {"Caf?", "Café", true},
                 {"??", "ÜÖ", true},
                 {"???", "ÜÖ", false},
                 {"*a*a*a*a*a*b", std::string(5000, 'a'), false}};
    for (const auto& c : cases)
        EXPECT_EQ(wildcard::Match(c.pattern, c.text), c.matches) << c.pattern << " " << c.text.substr(0, 20);

    EXPECT_TRUE(wildcard::MatchList("*.odt;*.pdf", "x.pdf", ';'));
    EXPECT_FALSE(wildcard::MatchList("*.odt;*.pdf", "x.PDF", ';'));
    EXPECT_TRUE(wildcard::MatchListNoCase("*.odt;*.pdf", "x.PDF", ';'));
    EXPECT_TRUE(wildcard::MatchListNoCase("straße*", "STRASSE 1", ';'));  // ß upper-cases to SS
    EXPECT_TRUE(wildcard::MatchList("alpha,beta", "beta", ','));
    EXPECT_TRUE(wildcard::MatchList(";x", "", ';'));  // an empty alternative matches empty text

    const char* const locales[] = {"C", "de_DE", "en_US", "ru_RU", "fi_FI", "ja_JP", "ar_EG"};
    const char* const datePatterns[] = {"d MMM yyyy",    "dd.MM.yy", "M/d/yy", "dddd, d. MMMM yyyy", "'day' d 'of' MMM, ''yy",
                                        "yyyy-MM-dd ddd"};
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
