#include "db/engine/KeyEncoding.h"

#include <bit>
#include <charconv>
#include <cmath>

namespace norvane::engine
{

namespace
{

constexpr std::uint64_t signBit = std::uint64_t{1} << 63;
constexpr int dayBeforeYearOne = 1721425; // Julian day number of the day before 0001-01-01

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Up to 15 digits fit a double exactly, so plain integers need no general conversion.
bool readShortInteger(std::string_view text, double &value)
{
    if (text.empty() || text.size() > 15)
        return false;
    std::uint64_t sum = 0;
    for (const char c : text) {
        if (!isDigit(c))
            return false;
        sum = sum * 10 + static_cast<std::uint64_t>(c - '0');
    }
    value = static_cast<double>(sum);
    return true;
}

// Reads a number from the start of `text`; gives how many characters it took, 0 for none.
std::size_t readNumber(std::string_view text, double &value)
{
    const std::size_t sign = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    const bool startsWell = text.size() > sign && (isDigit(text[sign]) || text[sign] == '.');
    if (!startsWell)
        return 0; // keeps out the words for infinity and not-a-number
    const char *begin = text.data() + (text[0] == '+' ? 1 : 0);
    const auto [end, failure] = std::from_chars(begin, text.data() + text.size(), value);
    return failure == std::errc() ? static_cast<std::size_t>(end - text.data()) : 0;
}

int daysOfMonth(int year, int month)
{
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

// Days since 0001-01-01, that day being 1 (Gregorian throughout).
int dayNumber(int year, int month, int day)
{
    const int y = year - 1;
    int days = y * 365 + y / 4 - y / 100 + y / 400 + day;
    for (int m = 1; m < month; ++m)
        days += daysOfMonth(year, m);
    return days;
}

} // namespace

void putNumberKey(double value, Byte *out)
{
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0); // the sum turns -0.0 into 0.0
    const std::uint64_t key = bits & signBit ? ~bits : bits | signBit;
    putBe32(out, static_cast<std::uint32_t>(key >> 32));
    putBe32(out + 4, static_cast<std::uint32_t>(key));
}

double numberOfKey(const Byte *key)
{
    const std::uint64_t bits = std::uint64_t{getBe32(key)} << 32 | getBe32(key + 4);
    return std::bit_cast<double>(bits & signBit ? bits & ~signBit : ~bits);
}

void putIntegerKey(std::int32_t value, Byte *out)
{
    putBe32(out, static_cast<std::uint32_t>(value) ^ 0x80000000u);
}

double fieldNumber(std::string_view text)
{
    const std::string_view digits = trimmed(text);
    double value = 0.0;
    if (readShortInteger(digits, value))
        return value;
    return readNumber(digits, value) == digits.size() && !digits.empty() ? value + 0.0 : 0.0;
}

std::optional<double> leadingNumber(std::string_view text)
{
    double value = 0.0;
    if (readNumber(trimmed(text), value) == 0)
        return std::nullopt;
    return value + 0.0;
}

double julianDay(std::string_view date)
{
    if (date.size() != 8)
        return 0.0;
    int digits = 0;
    for (const char c : date) {
        if (!isDigit(c))
            return 0.0;
        digits = digits * 10 + (c - '0');
    }
    const int year = digits / 10000, month = digits / 100 % 100, day = digits % 100;
    if (year < 1 || month < 1 || month > 12 || day < 1 || day > daysOfMonth(year, month))
        return 0.0;
    return dayNumber(year, month, day) + dayBeforeYearOne;
}

} // namespace norvane::engine
