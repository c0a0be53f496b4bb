// The lock bytes of a table's files; all lie behind any data (docs/locking.md).
#pragma once

#include <cstdint>

namespace norvane::engine
{

// Append lock of a table, index lock of an index file, allocation lock of a memo file. No file
// may grow up to here.
inline constexpr std::uint64_t kLockByte = 0x7FFFFFFE;
// Held shared by every session that has the table open, exclusive by one that has it alone.
inline constexpr std::uint64_t kOpenByte = kLockByte + 1;

inline std::uint64_t recordLockByte(std::uint32_t record)
{
    return kLockByte - record;
}

// Rows a table may have so that none of its data reaches its own record locks.
inline std::uint32_t maxRecords(std::uint16_t headerLength, std::uint16_t recordLength)
{
    return (0x80000000U - headerLength - 2U) / (recordLength + 1U);
}

} // namespace norvane::engine
