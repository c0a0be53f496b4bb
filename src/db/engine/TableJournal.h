// The saves of one table through its journal: begin, commit, apply, checkpoint, recover
// (docs/crash-safety.md). Every operation but look() REQUIRES that the caller holds the table's
// commit lock exclusively or has the table alone.
#pragma once

#include "db/engine/Journal.h"
#include "db/engine/JournalReplay.h"
#include "db/engine/TableFormat.h"
#include "db/engine/WriteSet.h"

#include <cstdint>
#include <memory>
#include <string>

namespace norvane::engine
{

// What a save reported as done survives.
enum class Durability {
    Full,   // a killed process and a power cut
    Process // a killed process
};

class TableJournal
{
public:
    // `firstUse`: nobody of this session has looked at this journal before.
    TableJournal(FileSystem &files, std::string path, const TableHeader &header, bool firstUse);

    void setFiles(const TargetFiles &files) { m_files = files; }

    enum class Need {
        Nothing,
        Finish, // a save is under way, or its station died
        Repair  // nobody can be at it: an unfinished load, a restart of the machine, doubtful tags
    };
    // One small read, after a restart of the machine more for a reader. Who only reads is refused
    // what would have to be written; Repair tells it that the tags cannot be relied on.
    Result<Need> look(bool readOnly);
    // As of the last look.
    bool missing() const { return m_state == Journal::State::Missing; }
    // Finishes or takes back what others began. True when the tags have to be built anew; this is
    // kept in the journal until rebuilt().
    Result<bool> recover();
    // The tags are about to be built anew: until rebuilt() whoever comes next sees to it.
    Status beginRebuild();
    Status rebuilt();
    // Puts a row count right that the file itself has proved wrong, and the file's end with it.
    Status setCount(std::uint32_t rows);

    // What the journal, as last looked at, tells of the files.
    enum class Verdict {
        Sound,   // nothing else wrote since our last save
        Changed, // somebody did, or there is no journal
        Older    // the index misses changes of the table
    };
    Verdict verdict(std::uint32_t rows, std::uint32_t counter) const;
    // What was applied is put on the medium and its records are forgotten.
    Status endRecords();
    std::uint32_t lastCounter() const
    {
        return m_state == Journal::State::Sound ? m_head.counter : 0;
    }
    bool saveUnderWay() const
    {
        return m_state == Journal::State::Sound && m_head.begun != m_head.applied;
    }
    std::uint64_t applied() const { return m_head.applied; }

    // Stores the pieces: all of them or, when it fails, none. Fresh ones first.
    // When only the way from the journal to the files failed, recover() will finish it; the
    // failure is of kind Io and `committed` is true.
    Status commit(Pieces &pieces, Durability durability, bool &committed);

    // Writing past the journal, alone in the table.
    Status beginBulk();
    // `complete`: all that was to be written is; else the mark stays.
    Status endBulk(bool complete);
    bool inBulk() const { return m_inBulk; }

    // Puts the files on the medium and forgets the records.
    Status checkpoint();

private:
    // TableJournal.cpp
    JournalHeader freshHeader() const;
    Status ensureJournal();
    Status announce();
    Status readHead();
    Status measure(std::array<std::uint64_t, kTargets> &sizes) const;
    Status noteState();
    Status noteOthersWrites();
    Status captureBefore(Pieces &pieces) const;
    Status makeRoom(std::size_t length);
    Status grow(const Pieces &pieces);
    Status growOnNetwork(const Pieces &pieces);
    Status store(const std::vector<Byte> &record, bool withSync);
    Status abandon(Status failure, bool recordWritten);
    Status apply(const Pieces &pieces);
    void finish(const Pieces &pieces, std::size_t length);
    Status newEpoch(bool withSync);
    Status syncOrDoubt();
    Status writeHead();

    // TableRecovery.cpp
    bool restarted() const;
    Result<Need> lookForReading();
    Status replayRecords(bool all, bool &rebuild);
    Result<bool> filesAreOlder(const std::vector<JournalRecord> &records) const;
    Status takeBackGrowth();
    Status tidyEnds(bool afterLoad);
    Result<bool> foreignRowsBehind(std::uint32_t rows) const;
    Status recountRows(bool restart);
    Status setTableEnd(std::uint32_t rows);
    Result<std::uint32_t> countInHeader() const;
    Result<std::uint32_t> counterInIndex() const;
    Result<bool> adoptDamaged();
    Result<bool> finishOthers();
    Status syncAll();
    Status syncOne(File &file);
    void leaveNothingWaiting();
    bool onNetwork() const { return m_files.at(Target::Table)->onNetwork(); }
    std::uint64_t endOfRows(std::uint32_t rows) const
    {
        return m_headerLength + std::uint64_t{rows} * m_recordLength;
    }

    FileSystem &m_system;
    Journal m_journal;
    TargetFiles m_files;
    JournalHeader m_head; // as last read or written
    Journal::State m_state = Journal::State::Missing;
    std::uint64_t m_headerLength;
    std::uint64_t m_recordLength;
    std::uint32_t m_shape;
    bool m_firstUse;
    std::uint64_t m_lookedThrough = 0; // salt of the records that a reader found in the files
    bool m_inBulk = false;
};

} // namespace norvane::engine
