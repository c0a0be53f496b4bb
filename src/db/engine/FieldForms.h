// Field contents as text of a record: numbers, dates and truth values (docs/table-format.md).
#pragma once

#include "db/engine/RowLayout.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane::engine
{

// Right-justified with exactly `decimals` digits behind the point, rounded; nothing when it does
// not fit the width or is no finite number. Zero carries no minus sign.
std::optional<std::string> numberText(double value, std::size_t width, int decimals);
std::optional<std::string> integerText(std::int64_t value, std::size_t width, int decimals);

// The number a text begins with (0 when there is none), cut to a whole one inside 32 bits.
std::int32_t leadingInteger(std::string_view text);
// The number that the whole text is, blanks around it allowed; nothing otherwise.
std::optional<double> wholeNumber(std::string_view text);

// True for eight digits that are a day of the Gregorian calendar.
bool isDate(std::string_view text);

std::string_view trimmed(std::string_view text);

// The block where a memo field's text begins, 0 when it has none; nothing when the field's bytes
// are no pointer (docs/memo-format.md).
std::optional<std::uint32_t> memoPointer(ByteView field);

// What is wrong with the stored form of a field; empty when it is sound.
std::string fieldProblem(const FieldDef &field, ByteView row);

} // namespace norvane::engine
