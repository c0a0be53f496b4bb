// An index file beside a sound table: walked, sought, checked, changed and built anew. Mutations
// know pages, so that they reach further than the check of a page's own bytes.
#include "db/engine/IndexPage.h"
#include "Exercise.h"

#include <algorithm>
#include <random>

using namespace norvane::fuzz;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t most);

namespace
{

constexpr int kRows = 40;
constexpr std::uint16_t kKeyLengths[] = {10, 8, 24}; // directory, numbers and dates, names

const SmallDisk &soundFiles()
{
    static const SmallDisk disk = [] {
        SmallDisk made;
        makeSample(made, kRows);
        return made;
    }();
    return disk;
}

std::vector<Byte> bytesOf(const std::string &path)
{
    return const_cast<SmallDisk &>(soundFiles()).content(path).bytes;
}

// Another entry, one entry less, or other neighbours, the page being sound in itself.
bool changeEntries(ByteSpan bytes, std::minstd_rand &random)
{
    for (const std::uint16_t length : kKeyLengths) {
        IndexPage page(0, PageKind::Leaf, {0, length, Byte(length == 8 ? 0 : ' ')});
        if (!decodePage(bytes, page).ok() || page.count() == 0)
            continue;
        const std::size_t at = random() % page.count();
        if (!page.isLeaf()) {
            putBe32(&bytes[12 + at * (length + std::size_t{8}) + length + 4],
                    static_cast<std::uint32_t>(random() % 64 * indexPageSize));
            return true;
        }
        std::string key(page.leaf.key(at));
        const std::uint32_t record = page.leaf.record(at);
        if (random() % 2 == 0)
            page.leaf.erase(at);
        if (random() % 4 != 0)
            key[random() % key.size()] = static_cast<char>(random());
        const std::uint32_t other = random() % 2 ? record : 1 + random() % (kRows + 3);
        page.leaf.insert(page.leaf.lowerBound(key, other), key, other);
        if (page.leaf.bytes() > leafCapacity)
            return false;
        page.encode(bytes, bytes[0] & 1);
        return true;
    }
    return false;
}

void changePage(ByteSpan file, std::minstd_rand &random)
{
    const std::size_t pages = file.size() / indexPageSize;
    const auto page = [&](std::size_t n) { return file.subspan(n * indexPageSize, indexPageSize); };
    const ByteSpan chosen = page(random() % pages);
    switch (random() % 6) {
    case 0:
        LLVMFuzzerMutate(chosen.data(), chosen.size(), chosen.size());
        break;
    case 1: {
        const ByteSpan from = page(random() % pages);
        std::copy(from.begin(), from.end(), chosen.begin());
        break;
    }
    case 2: // a neighbour
        putLe32(&chosen[random() % 2 ? 4 : 8],
                static_cast<std::uint32_t>(random() % (pages + 1) * indexPageSize));
        break;
    case 3: // a number of entries or an attribute
        chosen[random() % 4] = static_cast<Byte>(random() % 16);
        break;
    default:
        changeEntries(chosen, random);
    }
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t most, unsigned seed)
{
    std::minstd_rand random(seed);
    if (size < 3 * indexPageSize || random() % 16 == 0)
        return LLVMFuzzerMutate(data, size, most);
    for (int changes = 1 + static_cast<int>(random() % 3); changes > 0; --changes)
        changePage({data, size}, random);
    return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kMostBytes)
        return -1;
    static const std::vector<Byte> rows = bytesOf("sample.dbf"), memos = bytesOf("sample.fpt");
    SmallDisk disk;
    disk.put("sample.dbf", rows);
    disk.put("sample.fpt", memos);
    disk.put("sample.cdx", ByteView(data, size));
    const FuzzSession session(disk);
    const Handle shared = d4open(session.handle(), "sample.dbf");
    if (shared == 0)
        return 0;
    walkTags(shared);
    changeRows(shared);
    walkTags(shared);
    d4close(shared);
    code4accessMode(session.handle(), 1);
    const Handle alone = d4open(session.handle(), "sample.dbf");
    if (alone == 0)
        return 0;
    if (d4reindex(alone) == r4success)
        requireSound(alone, "an index just built is wrong");
    d4close(alone);
    return 0;
}
