// Numbers in texts, flags, counters and the comparisons of grid cells.
#include "support/FakeHost.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

class NumberText : public ::testing::Test
{
protected:
    FakeHost m_host;
};

} // namespace

TEST_F(NumberText, WhatIsNumeric)
{
    for (const char *text : {"0", "-12", "+1.5", "1,234.50", ".5", "5.", " 7 ", "1e3", "$1,000"})
        EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char *text : {"", " ", "abc", "1a", "1 2", "--1", ".", "-", "1.2.3", "1e", "e5",
                             ",1", "0x10", "nan", "inf", "1e999"})
        EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(1234.5, NumberInText("1,234.50"));
    EXPECT_EQ(-1000, NumberInText("-$1,000"));
}

TEST_F(NumberText, SignsFollowTheRegionalSettings)
{
    m_host.setLocale(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(1234.5, NumberInText("1.234,5"));
    EXPECT_EQ("1.234", gSys.FormatLongWithCommas(1234));
    EXPECT_EQ("1234,50 ", gSys.NumCleanStr("1.234,50 €"));
    m_host.setLocale(QLocale(QLocale::French, QLocale::France));
    EXPECT_EQ(1234.5, NumberInText("1 234,5")); // a plain blank for the narrow one
}

TEST_F(NumberText, ValReadsTheBeginning)
{
    EXPECT_EQ(12.5, Val("12.5 kg"));
    EXPECT_EQ(1234, Val("1,234x"));
    EXPECT_EQ(-3, Val(" -3-4"));
    EXPECT_EQ(0, Val("kg 12"));
    EXPECT_EQ(1, Val("1e"));
}

TEST_F(NumberText, RoundingGoesToTheEvenNeighbour)
{
    EXPECT_EQ(2, RoundToLong(2.5));
    EXPECT_EQ(4, RoundToLong(3.5));
    EXPECT_EQ(std::nullopt, RoundToLong(2147483648.0));
    EXPECT_EQ(std::nullopt, RoundToLong(std::numeric_limits<double>::quiet_NaN()));
}

TEST_F(NumberText, Str2IntFailsOutsideSixteenBits)
{
    EXPECT_EQ(12, gSys.Str2Int("12.4"));
    EXPECT_EQ(0, gSys.Str2Int("abc"));
    EXPECT_EQ(32767, gSys.Str2Int("32767"));
    EXPECT_EQ(-32768, gSys.Str2Int("-32768"));
    EXPECT_THROW(gSys.Str2Int("32768"), Failure);
    EXPECT_THROW(gSys.CompareInt("1", "99999"), Failure);
}

TEST_F(NumberText, NumbersWithSeparators)
{
    EXPECT_EQ("0", gSys.CommafyNoDec(0));
    EXPECT_EQ("0", gSys.CommafyNoDec("abc"));
    EXPECT_EQ("0", gSys.CommafyNoDec(QDate(2004, 3, 14)));
    EXPECT_EQ("1,234", gSys.CommafyNoDec("1234"));
    EXPECT_EQ("-1,234,568", gSys.CommafyNoDec(-1234567.8));
    EXPECT_EQ("999", gSys.CommafyNoDec(999));
    EXPECT_EQ("", gSys.CommafyNoDec(0.4));
    EXPECT_EQ("0", gSys.FormatLongWithCommas(0));
    EXPECT_EQ("-2,147,483,648", gSys.FormatLongWithCommas(std::numeric_limits<qint32>::min()));
    EXPECT_EQ("-123", gSys.FormatLongWithCommas(-123));
    EXPECT_EQ("1234.50", gSys.NumCleanStr("$1,234.50"));
}

TEST_F(NumberText, ZerosAndBounds)
{
    EXPECT_EQ("", gSys.ZeroToNullStr("0.00"));
    EXPECT_EQ("", gSys.ZeroToNullStr("none"));
    EXPECT_EQ("05", gSys.ZeroToNullStr("05"));
    EXPECT_EQ(0, gSys.Minus1ToZero(-1));
    EXPECT_EQ(-2, gSys.Minus1ToZero(-2));
    EXPECT_EQ(5, gSys.NotBelowMinVal(3, 5));
    EXPECT_EQ(3, gSys.NotAboveMaxVal(3, 5));
}

TEST_F(NumberText, Flags)
{
    EXPECT_TRUE(gSys.Str2Bool("True"));
    EXPECT_FALSE(gSys.Str2Bool("true"));
    EXPECT_TRUE(gSys.DBTF2TrueFalse("t"));
    EXPECT_FALSE(gSys.DBTF2TrueFalse("T "));
    EXPECT_EQ("F", gSys.Bool2TorF(false));
}

TEST_F(NumberText, CountersOverflowAsAFailure)
{
    qint32 value = std::numeric_limits<qint32>::max() - 1;
    gSys.IncL(value);
    EXPECT_THROW(gSys.IncL(value), Failure);
    EXPECT_EQ(std::numeric_limits<qint32>::max(), value);
    clsSystem fresh;
    EXPECT_EQ(1, fresh.NextDocNum());
    EXPECT_EQ(2, fresh.NextDocNum());
}

TEST_F(NumberText, CellsCompareByTheirKind)
{
    EXPECT_EQ(-1, gSys.CompareInt("9", "10"));
    EXPECT_EQ(0, gSys.CompareInt("abc", "xyz"));
    EXPECT_EQ(1, gSys.CompareInt("abc", "-1"));
    EXPECT_EQ(-1, gSys.CompareDate("12/31/2003", "1/1/2004"));
    EXPECT_EQ(-1, gSys.CompareDate("none", "1/1/1901"));
    EXPECT_EQ(0, gSys.CompareDate("", "none"));
    EXPECT_EQ(0, gSys.CompareStrNoCase("SMITH", "smith"));
    EXPECT_EQ(-1, gSys.CompareStrNoCase("Émile", "frank"));
    EXPECT_EQ(1, gSys.CompareStrNoCase("b", "A"));
}
