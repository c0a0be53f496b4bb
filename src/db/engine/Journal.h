// The journal file beside a table: a header and the records of its last saves
// (docs/crash-safety.md). Knows the format and the file, not what the bytes mean.
#pragma once

#include "db/engine/File.h"
#include "db/engine/WriteSet.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace norvane::engine
{

inline constexpr std::uint64_t kJournalStart = 512;       // offset of the first record
inline constexpr std::uint64_t kJournalSize = 256 * 1024; // bytes, as made

struct JournalHeader {
    static constexpr std::uint32_t kBulk = 1;    // a session alone in the table writes past it
    static constexpr std::uint32_t kRebuild = 2; // the tags have to be built anew from the rows
    static constexpr std::uint32_t kDurable = 4; // what is applied was synced
    static constexpr std::uint32_t kForce = 8;   // a sync failed: write again all that stands here

    static constexpr std::uint32_t kPromised = 16; // a save here was synced before its report

    std::uint32_t flags = 0;
    std::uint64_t salt = 0;               // of the records that count
    std::uint64_t first = 1;              // number of the first record of this salt
    std::uint64_t applied = 0;            // last save whose bytes are all in the files
    std::uint64_t begun = 0;              // last save begun
    std::uint64_t next = kJournalStart;   // where the next record goes
    std::uint64_t boot = 0;               // FileSystem::bootMark() of who writes
    std::array<std::uint64_t, 3> sizes{}; // of the files before the begun save, by Target
    std::uint32_t rows = 0;               // in the table's header after the last save applied
    std::uint32_t counter = 0;            // change counter of the index, likewise
    std::uint32_t shape = 0;              // CRC of the table's description

    bool has(std::uint32_t flag) const { return (flags & flag) != 0; }
    bool empty() const { return next == kJournalStart; }

    friend bool operator==(const JournalHeader &, const JournalHeader &) = default;
};

struct JournalRecord {
    std::uint64_t number = 0;
    std::uint64_t end = 0; // offset behind it
    Pieces pieces;
};

class Journal
{
public:
    Journal(FileSystem &files, std::string path) : m_system(files), m_path(std::move(path)) {}

    const std::string &path() const { return m_path; }
    enum class State { Missing, Sound, Damaged };
    // Reads the header; opens the file when that has not been done. A file without a single byte
    // but zeros was not finished and counts as missing.
    Result<State> read(JournalHeader &header, bool readOnly);
    // Makes the file in its full length (or just its header), with the rights of the table, and
    // puts it on the medium.
    Status create(const JournalHeader &header, bool fullLength, const std::string &table);
    Status write(const JournalHeader &header);
    Status sync();
    // A sync that failed is never tried again on the same open file.
    void close() { m_file.reset(); }
    // Closes and removes the file.
    Status remove();
    // Copies the file to NAME.bad, so that it can be looked at (KeepAside.h).
    Status keepCopy();

    static std::vector<Byte> encode(std::uint64_t number, std::uint64_t salt, const Pieces &pieces);
    Status writeRecord(std::uint64_t offset, ByteView record);
    // Makes sure that nobody takes what stands at `offset` for a record.
    Status wipeRecord(std::uint64_t offset);
    // The records of the header's salt from `offset` on, up to the first that is none.
    Result<std::vector<JournalRecord>> records(const JournalHeader &header, std::uint64_t offset,
                                               std::uint64_t number);
    // After a checkpoint: gives back what very long records took.
    void shrink();

private:
    Status reopen();

    FileSystem &m_system;
    std::string m_path;
    std::unique_ptr<File> m_file;
};

} // namespace norvane::engine
