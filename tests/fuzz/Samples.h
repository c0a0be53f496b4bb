// Files in memory for one fuzz input, and the small table that inputs stand beside.
#pragma once

#include "db/engine/RowLayout.h"
#include "support/MemoryFile.h"

#include <string>
#include <vector>

namespace norvane::fuzz
{

using namespace norvane::engine;
using test::MemoryFileSystem;

inline constexpr std::size_t kMostBytes = 64 * 1024; // of an input; longer ones are passed over

// A disk that is full when a file wants to grow beyond a few megabytes.
class SmallDisk : public MemoryFileSystem
{
public:
    void put(const std::string &path, ByteView bytes);
    ByteView bytes(const std::string &path) { return content(path).bytes; }
};

// An input of two files: the length of the first in four bytes, the first, the second.
struct TwoFiles {
    explicit TwoFiles(ByteView input);
    ByteView first, second;
};
std::vector<Byte> joined(ByteView first, ByteView second);

// Texts, numbers, dates, truth values and two memos, with a tag of each kind of key.
const TableDef &sampleTable();
// Makes it as sample.dbf, sample.cdx and sample.fpt with so many rows.
void makeSample(SmallDisk &disk, int rows);

} // namespace norvane::fuzz
