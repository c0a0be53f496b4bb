#include "db/engine/CodePage.h"
#include "db/engine/KeyEncoding.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

using namespace norvane::engine;

namespace
{

std::string numberKey(double value)
{
    std::array<Byte, 8> key{};
    putNumberKey(value, key.data());
    return std::string(asText(key));
}

std::string hex(const std::string &bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<Byte>(c);
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}

} // namespace

TEST(KeyEncoding, NumbersHaveTheBytesOtherProgramsWrite)
{
    EXPECT_EQ(hex(numberKey(0)), "8000000000000000");
    EXPECT_EQ(hex(numberKey(-0.0)), "8000000000000000");
    EXPECT_EQ(hex(numberKey(1)), "bff0000000000000");
    EXPECT_EQ(hex(numberKey(-1)), "400fffffffffffff");
    EXPECT_EQ(hex(numberKey(1000)), "c08f400000000000");
    EXPECT_EQ(hex(numberKey(-99.25)), "3fa72fffffffffff");
    EXPECT_EQ(hex(numberKey(julianDay("20000101"))), "c142b42c80000000");
}

TEST(KeyEncoding, KeysSortLikeTheirValuesAndComeBack)
{
    const double values[] = {-1e300, -12345.5, -1, -1e-300, 0, 1e-300, 0.5, 1, 2, 999999, 1e300};
    for (std::size_t i = 0; i < std::size(values); ++i) {
        const std::string key = numberKey(values[i]);
        EXPECT_EQ(numberOfKey(asBytes(key).data()), values[i]);
        if (i > 0) {
            EXPECT_LT(numberKey(values[i - 1]), key);
        }
    }
    std::array<Byte, 4> low{}, high{};
    putIntegerKey(std::numeric_limits<std::int32_t>::min(), low.data());
    putIntegerKey(-1, high.data());
    EXPECT_EQ(hex(std::string(asText(low))), "00000000");
    EXPECT_EQ(hex(std::string(asText(high))), "7fffffff");
}

TEST(KeyEncoding, FieldTextsAreReadExactly)
{
    EXPECT_EQ(fieldNumber("        42"), 42);
    EXPECT_EQ(fieldNumber("  -0.10"), -0.1);
    EXPECT_EQ(fieldNumber("0.1"), 0.1);
    EXPECT_EQ(fieldNumber("9007199254740993"), 9007199254740992.0); // rounds to even
    EXPECT_EQ(fieldNumber("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(fieldNumber(" .5"), 0.5);
    for (const char *none : {"", "    ", "****", "12x", "nan", "inf", "-", "1 2", "9e999"})
        EXPECT_EQ(fieldNumber(none), 0.0) << none;
    EXPECT_FALSE(std::signbit(fieldNumber("-0.00")));
}

TEST(KeyEncoding, SoughtNumbersMayStandBeforeOtherText)
{
    EXPECT_EQ(leadingNumber("  17"), 17.0);
    EXPECT_EQ(leadingNumber("+3.5 pieces"), 3.5);
    EXPECT_EQ(leadingNumber("-2x"), -2.0);
    for (const char *none : {"", "  ", "abc", "nan", "infinity", "+", "--1"})
        EXPECT_FALSE(leadingNumber(none)) << none;
}

TEST(KeyEncoding, DatesAreJulianDays)
{
    EXPECT_EQ(julianDay("20000101"), 2451545);
    EXPECT_EQ(julianDay("00010101"), 1721426);
    EXPECT_EQ(julianDay("20240301") - julianDay("20240228"), 2);
    EXPECT_EQ(julianDay("19000301") - julianDay("19000228"), 1);
    for (const char *none : {"        ", "20230229", "19000229", "20241301", "20240100", "00000101",
                             "2024 101", "2024", "202401011"})
        EXPECT_EQ(julianDay(none), 0) << none;
}

TEST(KeyEncoding, CaseTablesCoverCodePage1252)
{
    std::string text = "a\xE4\xFF\x9A\x9C\x9E\xDF\xF7\xD7z{";
    mapCase(upperCase, reinterpret_cast<Byte *>(text.data()), text.size());
    EXPECT_EQ(text, "A\xC4\x9F\x8A\x8C\x8E\xDF\xF7\xD7Z{");
    mapCase(lowerCase, reinterpret_cast<Byte *>(text.data()), text.size());
    EXPECT_EQ(text, "a\xE4\xFF\x9A\x9C\x9E\xDF\xF7\xD7z{");
}
