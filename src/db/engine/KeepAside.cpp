#include "db/engine/KeepAside.h"

#include <algorithm>
#include <vector>

namespace norvane::engine
{

namespace
{

constexpr int kMostKept = 5;
constexpr std::size_t kChunk = 1 << 20; // bytes

// Calls `use` with one part after the other of the file until it gives false or an error.
template <class F>
Status forParts(File &file, F use)
{
    std::vector<Byte> bytes(kChunk);
    for (std::uint64_t at = 0;;) {
        const Result<std::size_t> got = file.read(at, bytes);
        if (!got.ok())
            return got.error();
        if (*got == 0)
            return {};
        const Result<bool> more = use(at, ByteView(bytes).first(*got));
        if (!more.ok() || !*more)
            return more.status();
        at += *got;
    }
}

Result<bool> sameBytes(File &a, File &b)
{
    const Result<std::uint64_t> sizeA = a.size();
    const Result<std::uint64_t> sizeB = b.size();
    if (!sizeA.ok() || !sizeB.ok())
        return sizeA.ok() ? sizeB.error() : sizeA.error();
    bool same = *sizeA == *sizeB;
    if (!same)
        return false;
    std::vector<Byte> other(kChunk);
    const Status read = forParts(a, [&](std::uint64_t at, ByteView bytes) -> Result<bool> {
        const Result<std::size_t> got = b.read(at, ByteSpan(other).first(bytes.size()));
        if (!got.ok())
            return got.error();
        same = *got == bytes.size() && std::equal(bytes.begin(), bytes.end(), other.begin());
        return same;
    });
    return read.ok() ? Result<bool>(same) : read.error();
}

Status copyTo(FileSystem &files, File &from, const std::string &path, bool withSync)
{
    Result<std::unique_ptr<File>> copy = files.open(path, OpenMode::CreateNew);
    if (!copy.ok())
        return copy.error();
    (*copy)->takeRightsOf(from.path());
    Status status = forParts(from, [&](std::uint64_t at, ByteView bytes) -> Result<bool> {
        const Status written = (*copy)->write(at, bytes);
        return written.ok() ? Result<bool>(true) : written.error();
    });
    if (status.ok() && withSync)
        status = (*copy)->sync();
    if (status.ok() && withSync)
        status = files.syncFolderOf(path);
    copy->reset();
    if (!status.ok())
        (void)files.remove(path);
    return status;
}

} // namespace

Status keepAside(FileSystem &files, File &damaged, bool withSync)
{
    for (int n = 1; n <= kMostKept; ++n) {
        const std::string path = damaged.path() + (n == 1 ? ".bad" : ".bad" + std::to_string(n));
        Result<std::unique_ptr<File>> kept = files.open(path, OpenMode::ReadOnly);
        if (!kept.ok() && kept.error().kind == ErrorKind::NotFound)
            return copyTo(files, damaged, path, withSync);
        if (!kept.ok())
            return kept.error();
        const Result<bool> same = sameBytes(damaged, **kept);
        if (!same.ok() || *same)
            return same.status();
    }
    return {};
}

} // namespace norvane::engine
