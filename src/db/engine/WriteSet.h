// What one save writes: pieces of bytes for the files of a table, in the order in which they
// are best written.
#pragma once

#include "db/engine/Bytes.h"

#include <array>
#include <cstdint>
#include <vector>

namespace norvane::engine
{

class File;

enum class Target : Byte { Memo, Table, Index };
inline constexpr std::size_t kTargets = 3;
inline constexpr std::size_t kSector = 512; // bytes that a medium writes whole or not at all

struct Piece {
    Target target = Target::Table;
    bool fresh = false; // behind all that any header refers to; written before the commit
    std::uint64_t offset = 0;
    std::vector<Byte> bytes;
    // CRC-32C of what was there before (zeros behind the end), one for each sector touched.
    std::vector<std::uint32_t> before;

    std::uint64_t end() const { return offset + bytes.size(); }
    bool overlaps(const Piece &other) const
    {
        return target == other.target && offset < other.end() && other.offset < end();
    }
    bool covers(const Piece &other) const
    {
        return target == other.target && offset <= other.offset && other.end() <= end();
    }
    bool sameRange(const Piece &other) const
    {
        return target == other.target && offset == other.offset && end() == other.end();
    }
};

using Pieces = std::vector<Piece>;

// The sectors that a range touches.
inline std::size_t sectorsIn(std::uint64_t offset, std::uint64_t length)
{
    return static_cast<std::size_t>((offset + length + kSector - 1) / kSector - offset / kSector);
}

// The part of a piece's bytes that lies in its n-th sector.
inline ByteView sectorPart(ByteView bytes, std::uint64_t offset, std::size_t n)
{
    const std::size_t skew = offset % kSector;
    const std::size_t from = n == 0 ? 0 : n * kSector - skew;
    const std::size_t to = (n + 1) * kSector - skew;
    return bytes.subspan(from, (to < bytes.size() ? to : bytes.size()) - from);
}

// The open files of one table; null for one it does not have.
struct TargetFiles {
    std::array<File *, kTargets> files{};

    File *at(Target target) const { return files[static_cast<std::size_t>(target)]; }
};

} // namespace norvane::engine
