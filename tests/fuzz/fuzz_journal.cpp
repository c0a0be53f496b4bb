// A journal beside a sound table: whatever stands in it, opening finishes, takes back or sets
// aside, and the table can be worked with. Checksums are put right after each mutation.
#include "db/engine/Crc32c.h"
#include "db/engine/Journal.h"
#include "Exercise.h"

using namespace norvane::fuzz;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t most);

namespace
{

constexpr int kRows = 12;
constexpr std::size_t kHeaderLength = 128;
constexpr std::size_t kSumPlace = 8, kSummedFrom = 12; // in headers and records alike

void putSum(ByteSpan bytes)
{
    putLe32(&bytes[kSumPlace], crc32c(bytes.subspan(kSummedFrom)));
}

void putSumsRight(ByteSpan journal)
{
    if (journal.size() < kHeaderLength)
        return;
    putSum(journal.first(kHeaderLength));
    std::size_t at = kJournalStart;
    while (at + kSummedFrom <= journal.size()) {
        const std::size_t length = getLe32(&journal[at + 4]);
        if (length < kSummedFrom || length > journal.size() - at)
            return;
        putSum(journal.subspan(at, length));
        at += length;
    }
}

struct Sound {
    Sound()
    {
        SmallDisk disk;
        makeSample(disk, kRows);
        table = disk.content("sample.dbf").bytes;
        index = disk.content("sample.cdx").bytes;
        memos = disk.content("sample.fpt").bytes;
    }
    std::vector<Byte> table, index, memos;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t most, unsigned seed)
{
    const std::size_t mutated = LLVMFuzzerMutate(data, size, most);
    if (seed % 16 != 0)
        putSumsRight({data, mutated});
    return mutated;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kMostBytes)
        return -1;
    static const Sound sound;
    SmallDisk disk;
    disk.put("sample.dbf", sound.table);
    disk.put("sample.cdx", sound.index);
    disk.put("sample.fpt", sound.memos);
    disk.put("sample.nvj", ByteView(data, size));
    const FuzzSession session(disk);
    const Handle table = d4open(session.handle(), "sample.dbf");
    if (table == 0)
        return 0;
    readRows(table);
    changeRows(table);
    d4close(table);
    return 0;
}
