#include "db/engine/FieldForms.h"

#include "db/engine/KeyEncoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace norvane::engine
{

namespace
{

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool allDigits(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

std::optional<std::string> rightJustified(std::string_view digits, std::size_t width)
{
    const bool zero = digits.find_first_of("123456789") == std::string_view::npos;
    if (zero && digits.front() == '-')
        digits.remove_prefix(1);
    if (digits.size() > width)
        return std::nullopt;
    std::string text(width - digits.size(), ' ');
    return text.append(digits);
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// from_chars knows no plus sign
std::string_view withoutPlus(std::string_view text)
{
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    return text;
}

std::string problemOf(std::string_view text, std::string_view what)
{
    std::string sentence(1, '\'');
    return sentence.append(text).append("' is not a ").append(what);
}

std::string numberProblem(std::string_view text, int decimals)
{
    std::string_view rest = withoutLeadingBlanks(text);
    if (rest.empty())
        return {};
    if (rest.front() == '-')
        rest.remove_prefix(1);
    const std::size_t point = rest.find('.');
    const std::string_view whole = rest.substr(0, point);
    const std::string_view fraction =
        point == std::string_view::npos ? std::string_view() : rest.substr(point + 1);
    // a narrow field may have no room for the zero before the point
    const bool wholeFits = allDigits(whole) || (whole.empty() && allDigits(fraction));
    const bool fractionFits =
        decimals == 0
            ? point == std::string_view::npos
            : allDigits(fraction) && fraction.size() == static_cast<std::size_t>(decimals);
    if (wholeFits && fractionFits)
        return {};
    return problemOf(text, "number with " + std::to_string(decimals) + " decimals");
}

std::string pointerProblem(std::string_view text)
{
    const std::string_view digits = withoutLeadingBlanks(text);
    if (digits.empty() || (allDigits(digits) && digits.front() != '0'))
        return {};
    return problemOf(text, "memo block number");
}

} // namespace

std::optional<std::string> numberText(double value, std::size_t width, int decimals)
{
    if (!std::isfinite(value))
        return std::nullopt;
    std::array<char, 400> digits;
    const auto [end, failed] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                             std::chars_format::fixed, decimals);
    if (failed != std::errc())
        return std::nullopt;
    return rightJustified({digits.data(), static_cast<std::size_t>(end - digits.data())}, width);
}

std::optional<std::string> integerText(std::int64_t value, std::size_t width, int decimals)
{
    std::string digits = std::to_string(value);
    if (decimals > 0)
        digits.append(1, '.').append(static_cast<std::size_t>(decimals), '0');
    return rightJustified(digits, width);
}

std::int32_t leadingInteger(std::string_view text)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const double value = std::trunc(leadingNumber(text).value_or(0.0));
    return static_cast<std::int32_t>(
        std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max())));
}

std::optional<double> wholeNumber(std::string_view text)
{
    text = withoutPlus(trimmed(text));
    double value = 0;
    const char *end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (text.empty() || result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool isDate(std::string_view text)
{
    return julianDay(text) > 0;
}

std::string_view trimmed(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::optional<std::uint32_t> memoPointer(ByteView field)
{
    if (field.size() == 4)
        return getLe32(field.data());
    const std::string_view text = trimmed(asText(field));
    std::uint32_t block = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), block);
    if (!text.empty() && (result.ec != std::errc() || result.ptr != text.data() + text.size()))
        return std::nullopt;
    return block;
}

std::string fieldProblem(const FieldDef &field, ByteView row)
{
    const std::string_view text = asText(row.subspan(field.offset, field.length));
    switch (field.type) {
    case 'C':
        return text.find('\0') == std::string_view::npos ? "" : "the text holds a zero byte";
    case 'N':
    case 'F':
        return numberProblem(text, field.decimals);
    case 'D':
        return trimmed(text).empty() || isDate(text) ? std::string() : problemOf(text, "date");
    case 'L':
        return text.find_first_not_of("TFtfYyNn ?") == std::string_view::npos
                   ? std::string()
                   : problemOf(text, "truth value");
    case 'M':
        return field.length == 10 ? pointerProblem(text) : "";
    default:
        return {};
    }
}

} // namespace norvane::engine
