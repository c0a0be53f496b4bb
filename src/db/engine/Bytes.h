// All byte-order code of the engine. Callers guarantee that the bytes are there.
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace norvane::engine
{

using Byte = std::uint8_t;
using ByteView = std::span<const Byte>;
using ByteSpan = std::span<Byte>;

inline std::uint16_t getLe16(const Byte *p)
{
    return static_cast<std::uint16_t>(p[0] | p[1] << 8);
}

inline std::uint32_t getLe32(const Byte *p)
{
    return std::uint32_t{p[0]} | std::uint32_t{p[1]} << 8 | std::uint32_t{p[2]} << 16 |
           std::uint32_t{p[3]} << 24;
}

inline std::uint64_t getLe64(const Byte *p)
{
    return getLe32(p) | std::uint64_t{getLe32(p + 4)} << 32;
}

inline std::uint32_t getBe32(const Byte *p)
{
    return std::uint32_t{p[3]} | std::uint32_t{p[2]} << 8 | std::uint32_t{p[1]} << 16 |
           std::uint32_t{p[0]} << 24;
}

inline std::uint16_t getBe16(const Byte *p)
{
    return static_cast<std::uint16_t>(p[1] | p[0] << 8);
}

inline void putLe16(Byte *p, std::uint16_t v)
{
    p[0] = static_cast<Byte>(v);
    p[1] = static_cast<Byte>(v >> 8);
}

inline void putLe32(Byte *p, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<Byte>(v >> (8 * i));
}

inline void putLe64(Byte *p, std::uint64_t v)
{
    putLe32(p, static_cast<std::uint32_t>(v));
    putLe32(p + 4, static_cast<std::uint32_t>(v >> 32));
}

inline void putBe32(Byte *p, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        p[i] = static_cast<Byte>(v >> (24 - 8 * i));
}

inline void putBe16(Byte *p, std::uint16_t v)
{
    p[0] = static_cast<Byte>(v >> 8);
    p[1] = static_cast<Byte>(v);
}

inline std::string_view asText(ByteView bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), bytes.size()};
}

inline ByteView asBytes(std::string_view text)
{
    return {reinterpret_cast<const Byte *>(text.data()), text.size()};
}

} // namespace norvane::engine
