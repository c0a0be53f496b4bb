// Numbers in texts as a person writes them: sign, decimals and thousands separators of the
// regional settings.
#pragma once

#include <QString>

#include <optional>

bool IsNumeric(const QString &text);
// The number a whole text holds, blanks around it apart; nothing when it is not numeric.
std::optional<double> NumberInText(const QString &text);
// The number at the beginning of a text, 0 when there is none.
double Val(const QString &text);
// Halves go to the even neighbour. Nothing when the result is outside 32 bits.
std::optional<qint32> RoundToLong(double value);
