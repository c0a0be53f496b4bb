#include "Floors.h"

#include "Clock.h"
#include "IssueData.h"
#include "TwoProcesses.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace bench
{

namespace
{

constexpr std::size_t kPage = 512;
constexpr std::size_t kLargeBlock = 1 << 20;
constexpr std::size_t kJournalBytes = 6 * 1024;
constexpr int kKeyColumns = 8;

class RawFile
{
public:
    explicit RawFile(const std::string &path)
        : m_handle(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644))
    {
        if (m_handle < 0)
            throw std::runtime_error("cannot open " + path);
    }
    ~RawFile() { ::close(m_handle); }
    RawFile(const RawFile &) = delete;
    RawFile &operator=(const RawFile &) = delete;

    std::uint64_t size() const
    {
        struct stat info {
        };
        ::fstat(m_handle, &info);
        return static_cast<std::uint64_t>(info.st_size);
    }
    std::size_t read(std::uint64_t at, char *into, std::size_t length) const
    {
        return static_cast<std::size_t>(
            std::max<ssize_t>(0, ::pread(m_handle, into, length, static_cast<off_t>(at))));
    }
    void write(std::uint64_t at, const char *from, std::size_t length) const
    {
        if (::pwrite(m_handle, from, length, static_cast<off_t>(at)) < 0)
            throw std::runtime_error("cannot write");
    }
    void lock(short kind) const
    {
        struct flock range {
        };
        range.l_type = kind;
        range.l_whence = SEEK_SET;
        range.l_start = 0x7FFFFFFE;
        range.l_len = 1;
        ::fcntl(m_handle, F_OFD_SETLKW, &range);
    }
    void sync() const { ::fdatasync(m_handle); }

private:
    int m_handle;
};

template <class F>
void readInBlocks(const std::string &path, F look)
{
    const RawFile file(path);
    std::vector<char> block(kLargeBlock);
    std::uint64_t at = 0;
    while (const std::size_t got = file.read(at, block.data(), block.size())) {
        look(block.data(), got);
        at += got;
    }
}

std::uint64_t somePlace(Numbers &numbers, std::uint64_t size, std::size_t length)
{
    return numbers.next() % (size / length) * length;
}

bool hasRareWord(const char *text, std::size_t length)
{
    return memmem(text, length, kRareWord.data(), kRareWord.size()) != nullptr;
}

// Pages and rows at random places of files that were opened, as one lookup has to read them.
void lookAround(const RawFile &rows, const RawFile &keys, std::size_t rowLength, Numbers &numbers)
{
    static std::array<char, 4096> buffer;
    keys.lock(F_RDLCK);
    for (int level = 0; level < 3; ++level)
        keys.read(somePlace(numbers, keys.size(), kPage), buffer.data(), kPage);
    keys.lock(F_UNLCK);
    rows.read(somePlace(numbers, rows.size(), rowLength), buffer.data(), rowLength);
}

} // namespace

Floors::Floors(std::string folder, int rows)
    : m_folder(std::move(folder)), m_issues(m_folder + "/nvnissues."), m_rows(rows)
{
}

std::uint64_t Floors::rowAndMemoBytes() const
{
    return std::filesystem::file_size(m_issues + "dbf") +
           std::filesystem::file_size(m_issues + "fpt");
}

double Floors::sortAndWriteKeys() const
{
    struct Pair {
        std::uint64_t key;
        std::uint32_t record;
    };
    std::vector<Pair> pairs(static_cast<std::size_t>(m_rows));
    const std::vector<char> pages(std::filesystem::file_size(m_issues + "cdx"));
    const std::string written = m_folder + "/floor.keys";
    const double took = seconds([&] {
        readInBlocks(m_issues + "dbf", [](const char *, std::size_t) {});
        for (int column = 0; column < kKeyColumns; ++column) {
            Numbers numbers(static_cast<std::uint64_t>(column));
            std::uint32_t record = 0;
            for (Pair &pair : pairs)
                pair = {numbers.next(), ++record};
            std::sort(pairs.begin(), pairs.end(),
                      [](const Pair &a, const Pair &b) { return a.key < b.key; });
        }
        RawFile(written).write(0, pages.data(), pages.size());
    });
    std::filesystem::remove(written);
    return took;
}

double Floors::writeRows() const
{
    const std::string written = m_folder + "/floor.rows";
    const std::vector<char> block(kLargeBlock, 'x');
    const std::uint64_t size = rowAndMemoBytes();
    const double took = seconds([&] {
        const RawFile file(written);
        for (std::uint64_t at = 0; at < size; at += block.size())
            file.write(at, block.data(), block.size());
    });
    std::filesystem::remove(written);
    return took;
}

double Floors::readRows() const
{
    constexpr std::size_t field = 80;
    const std::size_t length =
        std::filesystem::file_size(m_issues + "dbf") / static_cast<std::size_t>(m_rows);
    long hits = 0;
    return seconds([&] {
        readInBlocks(m_issues + "dbf", [&](const char *bytes, std::size_t got) {
            std::array<char, field> folded;
            for (std::size_t at = 0; at + field <= got; at += length) {
                std::transform(bytes + at, bytes + at + field, folded.begin(), [](char c) {
                    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
                });
                hits += hasRareWord(folded.data(), field) ? 1 : 0;
            }
        });
    });
}

double Floors::readMemos() const
{
    long hits = 0;
    return seconds([&] {
        readInBlocks(m_issues + "fpt", [&](const char *bytes, std::size_t got) {
            hits += hasRareWord(bytes, got) ? 1 : 0;
        });
    });
}

double Floors::readAll() const
{
    return seconds([&] {
        for (const char *extension : {"dbf", "cdx", "fpt"})
            readInBlocks(m_issues + extension, [](const char *, std::size_t) {});
    });
}

double Floors::rowsOneByOne(int count) const
{
    const RawFile rows(m_issues + "dbf");
    const std::uint64_t size = rows.size();
    const std::size_t length = size / static_cast<std::size_t>(m_rows);
    std::array<char, 4096> buffer;
    Numbers numbers(3);
    return seconds([&] {
        for (int i = 0; i < count; ++i)
            rows.read(somePlace(numbers, size, length), buffer.data(), length);
    });
}

double Floors::lookup() const
{
    const RawFile rows(m_issues + "dbf");
    const RawFile keys(m_issues + "cdx");
    const std::size_t length = rows.size() / static_cast<std::size_t>(m_rows);
    Numbers numbers(4);
    return microsecondsEach(20000, [&] { lookAround(rows, keys, length, numbers); });
}

double Floors::openLookup() const
{
    const std::size_t length =
        std::filesystem::file_size(m_issues + "dbf") / static_cast<std::size_t>(m_rows);
    Numbers numbers(5);
    return microsecondsEach(2000, [&] {
        const RawFile rows(m_issues + "dbf");
        const RawFile keys(m_issues + "cdx");
        const RawFile memos(m_issues + "fpt");
        lookAround(rows, keys, length, numbers);
    });
}

// Counter row, then memo, row, eight key pages and heads, all of it in a journal before.
double Floors::save(bool durable) const
{
    const std::string base = m_folder + "/floor.";
    static const std::vector<char> bytes(kJournalBytes, 'x');
    const double each = microsecondsEach(200, [&] {
        const RawFile counters(base + "counters"), counterKeys(base + "counterkeys");
        const RawFile rows(base + "rows"), keys(base + "keys"), memos(base + "memos");
        const RawFile journal(base + "journal");
        counters.lock(F_WRLCK);
        counters.write(0, bytes.data(), 64);
        counters.lock(F_UNLCK);
        rows.lock(F_WRLCK);
        keys.lock(F_WRLCK);
        memos.write(memos.size(), bytes.data(), 512);
        journal.write(0, bytes.data(), kJournalBytes);
        if (durable)
            journal.sync();
        rows.write(rows.size(), bytes.data(), 500);
        for (std::uint64_t page = 0; page < kKeyColumns; ++page)
            keys.write(page * 64 * kPage, bytes.data(), kPage);
        keys.write(0, bytes.data(), 16);
        rows.write(0, bytes.data(), 8);
        keys.lock(F_UNLCK);
        rows.lock(F_UNLCK);
    });
    for (const char *name : {"counters", "counterkeys", "rows", "keys", "memos", "journal"})
        std::filesystem::remove(base + name);
    return each;
}

double Floors::counter(bool durable) const
{
    const std::string path = m_folder + "/floor.counter";
    RawFile(path).write(0, "0000", 4);
    const double each = twoProcesses(durable ? 300 : 2000, [&](int count) {
        for (int i = 0; i < count; ++i) {
            const RawFile file(path);
            file.lock(F_WRLCK);
            std::uint32_t value = 0;
            std::array<char, sizeof value> bytes;
            file.read(0, bytes.data(), bytes.size());
            std::memcpy(&value, bytes.data(), sizeof value);
            ++value;
            std::memcpy(bytes.data(), &value, sizeof value);
            file.write(0, bytes.data(), bytes.size());
            if (durable)
                file.sync();
            file.lock(F_UNLCK);
        }
    });
    std::filesystem::remove(path);
    return each;
}

} // namespace bench
