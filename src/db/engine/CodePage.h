// Letter case in code page 1252 by fixed tables, the same on every machine whatever its locale:
// keys made here and elsewhere must agree to the byte.
#pragma once

#include "db/engine/Bytes.h"

#include <array>

namespace norvane::engine
{

using CaseTable = std::array<Byte, 256>;

extern const CaseTable upperCase; // letters without a capital (sharp s) stay as they are
extern const CaseTable lowerCase;

inline void mapCase(const CaseTable &table, Byte *text, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i)
        text[i] = table[text[i]];
}

} // namespace norvane::engine
