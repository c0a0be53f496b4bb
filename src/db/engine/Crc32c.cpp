#include "db/engine/Crc32c.h"

#include <array>

namespace norvane::engine
{

namespace
{

using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

// Eight tables, so that eight bytes are taken in one step.
constexpr Tables makeTables()
{
    constexpr std::uint32_t polynomial = 0x82F63B78; // reflected
    Tables tables{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        std::uint32_t value = i;
        for (int bit = 0; bit < 8; ++bit)
            value = (value & 1) != 0 ? value >> 1 ^ polynomial : value >> 1;
        tables[0][i] = value;
    }
    for (std::size_t t = 1; t < tables.size(); ++t) {
        for (std::size_t i = 0; i < 256; ++i)
            tables[t][i] = tables[t - 1][i] >> 8 ^ tables[0][tables[t - 1][i] & 0xFF];
    }
    return tables;
}

constexpr Tables tables = makeTables();

} // namespace

std::uint32_t crc32c(ByteView bytes, std::uint32_t before)
{
    std::uint32_t crc = ~before;
    const Byte *at = bytes.data();
    std::size_t left = bytes.size();
    for (; left >= 8; left -= 8, at += 8) {
        const std::uint32_t low = crc ^ getLe32(at);
        const std::uint32_t high = getLe32(at + 4);
        crc = tables[7][low & 0xFF] ^ tables[6][low >> 8 & 0xFF] ^ tables[5][low >> 16 & 0xFF] ^
              tables[4][low >> 24] ^ tables[3][high & 0xFF] ^ tables[2][high >> 8 & 0xFF] ^
              tables[1][high >> 16 & 0xFF] ^ tables[0][high >> 24];
    }
    for (; left > 0; --left)
        crc = crc >> 8 ^ tables[0][(crc ^ *at++) & 0xFF];
    return ~crc;
}

} // namespace norvane::engine
