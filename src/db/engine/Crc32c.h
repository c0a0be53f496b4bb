// The checksum of journal headers and records: CRC-32C (Castagnoli).
#pragma once

#include "db/engine/Bytes.h"

#include <cstdint>

namespace norvane::engine
{

// Of `bytes`, or of all bytes of several calls when each is given the result before it.
std::uint32_t crc32c(ByteView bytes, std::uint32_t before = 0);

} // namespace norvane::engine
