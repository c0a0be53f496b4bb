// A table and its memo file as they come: opened, read, checked and changed, without an index.
#include "Exercise.h"

using namespace norvane::fuzz;

namespace
{

constexpr std::size_t kFlagsPlace = 28;

// Nothing lies beside the two files, so a table that names an index would only not open.
void withoutIndex(SmallDisk &disk)
{
    std::vector<Byte> &table = disk.content("t.dbf").bytes;
    if (table.size() > kFlagsPlace)
        table[kFlagsPlace] &= static_cast<Byte>(~1U);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kMostBytes)
        return -1;
    const TwoFiles input(ByteView(data, size));
    SmallDisk disk;
    disk.put("t.dbf", input.first);
    disk.put("t.fpt", input.second);
    withoutIndex(disk);
    const FuzzSession session(disk);
    const Handle table = d4open(session.handle(), "t.dbf");
    if (table == 0)
        return 0;
    readRows(table);
    changeRows(table);
    d4close(table);
    return 0;
}
