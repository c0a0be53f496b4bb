// Values as index key bytes that sort as unsigned bytes (docs/index-format.md, "Keys").
#pragma once

#include "db/engine/Bytes.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace norvane::engine
{

inline constexpr std::size_t numberKeyLength = 8; // numbers and dates
inline constexpr std::size_t integerKeyLength = 4;

void putNumberKey(double value, Byte *out);        // 8 bytes
double numberOfKey(const Byte *key);               // the value again
void putIntegerKey(std::int32_t value, Byte *out); // 4 bytes

// The value of a numeric field's text, rounded correctly; 0 for a blank or malformed one.
double fieldNumber(std::string_view text);
// The number at the start of a text, blanks before it skipped; nothing when there is none.
std::optional<double> leadingNumber(std::string_view text);
// Julian day number of YYYYMMDD; 0 when it is blank or not a date.
double julianDay(std::string_view date);

} // namespace norvane::engine
