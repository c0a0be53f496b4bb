// Dates and times: shown, typed, stored, and as ranges.
#include "support/FakeHost.h"

#include "common/base/clsSystem.h"

#include <gtest/gtest.h>

namespace
{

class Dates : public ::testing::Test
{
protected:
    FakeHost m_host;
};

std::string typed(const QString &text)
{
    return clsSystem::CBDateFormat(text).toStdString();
}

std::string typedTime(const QString &text)
{
    return clsSystem::CBTimeFormat(text).toStdString();
}

std::string shown(const QString &stored)
{
    return clsSystem::DBDateToDislayDate(stored).toStdString();
}

void expectRange(int code, const char *start, const char *end)
{
    QString first;
    QString last;
    EXPECT_TRUE(gSys.MakeDateRange(code, first, last)) << code;
    EXPECT_EQ(start, first.toStdString()) << code;
    EXPECT_EQ(end, last.toStdString()) << code;
}

} // namespace

TEST_F(Dates, TheClockIsShownInItsForms)
{
    EXPECT_EQ("3/14/2004", gSys.ShortDate());
    EXPECT_EQ("Sunday, March 14, 2004", gSys.LongDate());
    EXPECT_EQ("Mar-14-04", gSys.NeutralShortDate());
    EXPECT_EQ("3:05:09 PM", gSys.CurrTimeAMPM());
    EXPECT_EQ("3/14/2004 @ 3:05:09 PM", gSys.CurrDateTimeShort());
    EXPECT_EQ("Sunday, March 14, 2004 @ 3:05 PM", gSys.CurrDateTimeLong());
}

TEST_F(Dates, MidnightAndNoonAreTwelve)
{
    EXPECT_EQ("12:00:00 AM", gSys.DBTimeToDislayTime("00:00:00"));
    EXPECT_EQ("12:30:00 PM", gSys.DBTimeToDislayTime("12:30:00"));
    EXPECT_EQ("", gSys.DBTimeToDislayTime("        "));
    EXPECT_EQ("", gSys.DBTimeToDislayTime("25:00:00"));
}

TEST_F(Dates, AStoredDateIsShownByItsTwoDigitYear)
{
    EXPECT_EQ("3/14/2004", shown("20040314"));
    EXPECT_EQ("1/2/2025", shown("19250102")); // the century stored does not count
    EXPECT_EQ("12/31/2029", shown("20291231"));
    EXPECT_EQ("1/1/1930", shown("20300101"));
    EXPECT_EQ("Friday, December 31, 1999", gSys.DBDateToDislayDate("19991231", gSys.FmtLongDate()));
    EXPECT_EQ("Dec-31-99", gSys.DBDateToDislayDate("19991231", gSys.FmtNeutralDate()));
}

TEST_F(Dates, WhatIsNoStoredDateIsShownEmpty)
{
    for (const char *text : {"", "        ", "200403", "200403xx", "3/14/2004", "20041 xx"})
        EXPECT_EQ("", shown(text)) << text;
    EXPECT_EQ("5/4/2004", shown("20040434")); // runs on into the next month
}

TEST_F(Dates, EveryTypedFormGivesTheSameDate)
{
    for (const char *text :
         {"3/14/2004", "3/14/04", "03/14/2004", "3-14-2004", "3.14.04", " 3/14/2004 ", "2004-03-14",
          "2004/3/14", "20040314", "March 14, 2004", "14 Mar 2004", "Mar-14-04",
          "Sunday, March 14, 2004", "sun, mar. 14, 2004"})
        EXPECT_EQ("20040314", typed(text)) << text;
}

TEST_F(Dates, WhatIsNoDateIsRefused)
{
    for (const char *text :
         {"", "   ", "tomorrow", "14/3/2004", "2/30/2004", "2/29/2003", "3/14", "3/14/200",
          "3/14/20041", "3/14/2004/5", "20041332", "00000000", "3//14/2004", "-3/14/2004",
          "3/14/4x", "Foo 14, 2004", "March March 2004", "14 2004", "99999999999999999999/1/1"})
        EXPECT_EQ("", typed(text)) << text;
    EXPECT_EQ(QDate(1800, 1, 1), gSys.Str2Date("n/a"));
    EXPECT_EQ(-36522, QDate(1899, 12, 30).daysTo(gSys.SentinelDate()));
}

TEST_F(Dates, TwoDigitYearsTurnAtThirty)
{
    EXPECT_EQ("20290101", typed("1/1/29"));
    EXPECT_EQ("19300101", typed("1/1/30"));
    EXPECT_EQ("19250101", typed("1/1/1925")); // four digits are taken at their word
    EXPECT_EQ("20000229", typed("2/29/00"));
}

TEST_F(Dates, TheLocaleDecidesTheOrder)
{
    m_host.setLocale(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ("20040314", typed("14.03.04"));
    EXPECT_EQ("20040314", typed("14. März 2004"));
    EXPECT_EQ("14.03.2004", shown("20040314"));
    m_host.setLocale(QLocale(QLocale::Swedish, QLocale::Sweden));
    EXPECT_EQ("20040314", typed("04-03-14"));
    m_host.setLocale(QLocale(QLocale::Spanish, QLocale::Spain));
    EXPECT_EQ("20040314", typed(gSys.FormatDate(QDate(2004, 3, 14), gSys.FmtLongDate())));
}

TEST_F(Dates, WhatIsShownCanBeTyped)
{
    for (const auto language : {QLocale::English, QLocale::German, QLocale::French, QLocale::Dutch,
                                QLocale::Japanese, QLocale::Hungarian}) {
        m_host.setLocale(QLocale(language));
        const QDate date(2011, 10, 9);
        EXPECT_EQ(date, gSys.Str2Date(gSys.FormatDate(date, gSys.FmtShortDate()))) << language;
        const QTime time(15, 5, 9);
        EXPECT_EQ("15:05:09", typedTime(gSys.FormatTime(time, true))) << language;
    }
}

TEST_F(Dates, TypedTimes)
{
    EXPECT_EQ("15:05:00", typedTime("3:05 PM"));
    EXPECT_EQ("15:05:09", typedTime("15:05:09"));
    EXPECT_EQ("00:30:00", typedTime("12:30 am"));
    EXPECT_EQ("12:00:00", typedTime("12 p.m."));
    for (const char *text : {"", "noon", "3", "24:00", "9:60", "13:00 PM", "9:00 XM", "1:2:3:4"})
        EXPECT_EQ("", typedTime(text)) << text;
}

TEST_F(Dates, RangesOfMonthsAndYears)
{
    expectRange(1, "3/1/2004", "3/31/2004");
    expectRange(2, "1/1/2004", "12/31/2004");
    expectRange(11, "2/1/2004", "2/29/2004");
    expectRange(12, "1/1/2003", "12/31/2003");
    m_host.setNow(QDateTime(QDate(2005, 1, 31), QTime(0, 0)));
    expectRange(11, "12/1/2004", "12/31/2004");
}

TEST_F(Dates, OtherRangeCodesGiveTheMoment)
{
    const char *now = "3/14/2004 @ 3:05:09 PM";
    expectRange(3, now, now);
    expectRange(10, now, now);
    for (const int code : {0, 13, -1}) {
        QString start;
        QString end;
        EXPECT_FALSE(gSys.MakeDateRange(code, start, end));
        EXPECT_EQ(now, start);
        EXPECT_EQ(now, end);
    }
}

TEST_F(Dates, MonthLengths)
{
    EXPECT_EQ(29, gSys.GetNumDaysInMonth(2, 2000));
    EXPECT_EQ(28, gSys.GetNumDaysInMonth(2, 1900));
    EXPECT_EQ(30, gSys.GetNumDaysInMonth(13, 2004));
    EXPECT_EQ(30, gSys.GetNumDaysInMonth(0, 2004));
    EXPECT_EQ(31, gSys.GetNumDaysInMonth(12, 2004));
}
