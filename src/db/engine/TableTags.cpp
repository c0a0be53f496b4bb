// Building the tags anew from the rows: over the index, in its place, or in memory beside it.
#include "db/engine/Cleanup.h"
#include "db/engine/LockPlaces.h"
#include "db/engine/ScratchFile.h"
#include "db/engine/TableFiles.h"
#include "db/engine/TagList.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

using namespace std::chrono_literals;

constexpr std::size_t kCopied = 1 << 20;   // bytes at a time
constexpr std::uint64_t kCounterPlace = 8; // in the index header, high byte first
// For those who have the table open while its index gets another layout.
const LockPatience kAlonePatience{10, 100ms, {}};

// All pages and then the head, with a change counter that makes everybody read them anew.
Status copyOver(File &fresh, File &live)
{
    const Result<std::uint64_t> size = fresh.size();
    if (!size.ok())
        return size.error();
    std::vector<Byte> head(indexPageSize);
    const Result<std::size_t> old = live.read(0, head);
    if (!old.ok())
        return old.error();
    const std::uint32_t counter = getBe32(&head[kCounterPlace]);
    std::vector<Byte> bytes;
    for (std::uint64_t at = indexPageSize; at < *size; at += bytes.size()) {
        bytes.resize(static_cast<std::size_t>(std::min<std::uint64_t>(kCopied, *size - at)));
        const Result<std::size_t> got = fresh.read(at, bytes);
        if (!got.ok())
            return got.error();
        if (Status status = live.write(at, bytes); !status.ok())
            return status;
    }
    const Result<std::size_t> got = fresh.read(0, head);
    if (!got.ok())
        return got.error();
    putBe32(&head[kCounterPlace], std::max(counter, getBe32(&head[kCounterPlace])) + 1);
    const Status status = live.write(0, head);
    return status.ok() ? live.resize(*size) : status;
}

} // namespace

// What the journal asks for. One that cannot be read is looked at when the table is opened.
Status TableFiles::mendIndex()
{
    if (!m_index)
        return m_journal->rebuilt();
    return buildTagsAnew(asDefs(m_index->tags()), "a save or a load was not finished");
}

Result<std::shared_ptr<File>> TableFiles::buildBeside(const std::vector<TagDef> &tags,
                                                      bool withSync)
{
    const std::string beside = indexPath() + ".new";
    (void)m_system.remove(beside);
    Result<std::unique_ptr<File>> made = m_system.open(beside, OpenMode::CreateNew);
    if (!made.ok())
        return made.error();
    std::shared_ptr<File> fresh = std::move(*made);
    fresh->takeRightsOf(path());
    Status status = buildIndex(*fresh, layout(), tags, allRows());
    std::array<Byte, 4> counter{};
    putBe32(counter.data(), m_journal->lastCounter() + 1); // or it would look older than the table
    if (status.ok())
        status = fresh->write(kCounterPlace, counter);
    if (status.ok() && withSync)
        status = fresh->sync();
    if (status.ok())
        return fresh;
    fresh.reset();
    (void)m_system.remove(beside);
    return status.error();
}

// Beside the old index first and then over it, so that other sessions may have the table open.
// Broken off, it is begun again: the journal keeps the mark.
Status TableFiles::buildTagsAnew(const std::vector<TagDef> &tags, const std::string &why)
{
    if (exclusive())
        return rebuildIndex();
    Result<std::shared_ptr<File>> fresh = buildBeside(tags, false);
    if (!fresh.ok())
        return fresh.error();
    const std::string beside = (*fresh)->path();
    const Status laid = layOver(*fresh);
    fresh->reset();
    (void)m_system.remove(beside);
    if (!laid.ok())
        return laid;
    Result<std::unique_ptr<IndexFile>> index = IndexFile::open(m_indexFile->shared(), layout());
    if (!index.ok())
        return index.error();
    m_index = std::move(*index);
    m_indexLost = m_indexDoubted = false;
    m_tagsAreNew = true;
    m_mended.push_back({indexPath(), "the tags were built anew: " + why});
    if (Status done = m_journal->rebuilt(); !done.ok())
        return done;
    return m_index->refresh();
}

// In a table whose index file is not there. It has its keys before it has its name, and the
// journal's records for the old one end before.
Status TableFiles::makeIndex(const std::vector<TagDef> &tags)
{
    Result<std::shared_ptr<File>> fresh = buildBeside(tags, true);
    if (!fresh.ok())
        return fresh.error();
    const std::string beside = (*fresh)->path();
    fresh->reset();
    Status status = m_journal->endRecords();
    if (status.ok())
        status = takeNewIndex(beside);
    else
        (void)m_system.remove(beside);
    if (status.ok())
        m_mended.push_back({indexPath(), "the index was missing; it was built from the rows"});
    return status;
}

// In the place of the index that is missing or of no use to anybody.
Status TableFiles::takeNewIndex(const std::string &beside)
{
    const std::string live = indexPath();
    m_index.reset(); // an open file cannot be replaced everywhere
    m_indexFile.reset();
    nameTargets();
    Status renamed = m_system.rename(beside, live);
    if (renamed.ok()) {
        renamed = m_system.syncFolderOf(live);
        if (!renamed.ok() && exclusive())
            m_indexLost = true; // the old one may come back
    } else {
        (void)m_system.remove(beside);
    }
    ++m_stamp;
    Status opened = openIndex(live, readOnly());
    m_indexGone = !opened.ok();
    if (opened.ok())
        opened = m_index->refresh();
    return renamed.ok() ? opened : renamed;
}

Status TableFiles::layOver(const std::shared_ptr<File> &fresh)
{
    const Result<std::unique_ptr<IndexFile>> index = IndexFile::open(fresh, layout());
    if (!index.ok())
        return index.error();
    // Sessions that have the table open know where its tags begin.
    const bool alone = !m_index || !(*index)->laidOutLike(*m_index);
    if (alone) {
        const Status taken = waitForLock(atMost(kAlonePatience), LockPace::Record, [this] {
            return m_table.tryLock(kOpenByte, LockMode::Exclusive);
        });
        if (!taken.ok())
            return Error{taken.error().kind, indexPath(),
                         "the index has to be built anew; close the table at the other stations"};
    }
    Cleanup lower([&] {
        if (alone)
            (void)m_table.unlock(kOpenByte, LockMode::Exclusive);
    });
    Status status = m_journal->beginRebuild();
    if (status.ok())
        status = copyOver(*fresh, m_indexFile->file());
    lower.cancel();
    if (alone) {
        const Status lowered = m_table.unlock(kOpenByte, LockMode::Exclusive);
        if (status.ok())
            status = lowered;
    }
    return status;
}

// A new index from the rows in a table held alone. Never an empty or half index under the live
// name: built beside, then put in its place.
Status TableFiles::rebuildIndex()
{
    if (!wantsIndex() && !m_index)
        return {};
    const Status reopened = reopenIndex();
    const Result<std::vector<TagDef>> tags = tagsToBuild();
    if (!tags.ok())
        return tags.error();
    if (tags->empty() && !m_index)
        return reopened.ok() ? m_indexProblem : reopened;
    if (Status status = m_journal->beginBulk(); !status.ok())
        return status;
    if (Status status = writeOutCount(); !status.ok())
        return status;
    if (m_index)
        m_index->discard();
    m_indexLost = m_indexLost || m_indexWaits > 0; // the old one cannot be relied on any more
    m_indexWaits = 0;
    Result<std::shared_ptr<File>> fresh = buildBeside(*tags, true);
    if (!fresh.ok())
        return fresh.error();
    const std::string beside = (*fresh)->path();
    fresh->reset();
    Status status = takeNewIndex(beside);
    if (status.ok()) {
        m_unkeyed = 0;
        m_indexLost = m_indexDoubted = false;
        m_indexProblem = {};
        m_copy.reset();
        m_damage = {};
        m_tagsAreNew = true;
    }
    return status;
}

// ---- reading without the index

// The table is open for reading only from now on. With the tags known, a copy of the index in
// memory keeps every order and search right.
Status TableFiles::standIn(const Error &why, bool forIndex)
{
    m_damage = why;
    ++m_stamp;
    if (!forIndex)
        return {};
    Result<std::vector<TagDef>> tags = tagsToBuild();
    if (!tags.ok())
        tags = expectedTags();
    if (tags->empty())
        return {};
    const auto file = std::make_shared<ScratchFile>(indexPath());
    const RowSource noRows{[](std::uint32_t &, ByteView &) -> Result<bool> { return false; }};
    if (Status status = buildIndex(*file, layout(), *tags, noRows); !status.ok())
        return status;
    Result<std::unique_ptr<IndexFile>> copy = IndexFile::open(file, layout());
    if (!copy.ok())
        return copy.error();
    m_copy = std::move(*copy);
    m_copyOf.reset();
    return {};
}

Status TableFiles::refreshIndex()
{
    if (m_copy)
        return refreshCopy();
    return m_index ? m_index->refresh() : Status();
}

Status TableFiles::refreshCopy()
{
    if (Status status = refreshCount(); !status.ok())
        return status;
    const std::array<std::uint64_t, 3> now{m_claimed, m_size, m_journal->applied()};
    if (m_copyOf == now)
        return {};
    const auto file = std::make_shared<ScratchFile>(indexPath());
    if (Status status = buildIndex(*file, layout(), asDefs(m_copy->tags()), allRows());
        !status.ok())
        return status;
    Result<std::unique_ptr<IndexFile>> copy = IndexFile::open(file, layout());
    if (!copy.ok())
        return copy.error();
    m_copy = std::move(*copy);
    m_copyOf = now;
    ++m_stamp;
    return m_copy->refresh();
}

} // namespace norvane::engine
