#include "db/engine/JournalReplay.h"

#include "db/engine/Crc32c.h"

#include <algorithm>

namespace norvane::engine
{

namespace
{

constexpr std::uint64_t kHeads = 32; // a piece that begins before is a file's header

// One place that records wrote to, with all that was written there or across it, in order.
class Place
{
public:
    Place(const std::vector<const Piece *> &all, std::size_t first) : m_piece(*all[first])
    {
        for (std::size_t i = first; i < all.size(); ++i) {
            if (all[i]->overlaps(m_piece))
                m_writes.push_back(all[i]);
        }
    }

    // What should stand here when all is written.
    std::vector<Byte> last() const
    {
        std::vector<Byte> bytes = m_piece.bytes;
        for (const Piece *piece : m_writes)
            lay(*piece, bytes);
        return bytes;
    }

    // True when `disk` can come from these writes, each sector for itself: as before one of them
    // or as after one. `disk` has zeros behind the end of the file, from `there` bytes on; a length
    // may reach the medium later than what it covers.
    bool explains(ByteView disk, std::size_t there) const
    {
        // Behind a new row stands the end mark, or by now the first byte of the next one.
        if (m_piece.fresh && m_piece.target == Target::Table)
            there = std::min(there, m_piece.bytes.size() - 1);
        std::vector<bool> known(m_piece.before.size());
        for (std::size_t n = 0; n < known.size() && m_piece.fresh; ++n) {
            // a place that got its first bytes after the last sync
            // (of a row perhaps the first byte alone, written with the row before)
            ByteView now = sectorPart(disk, m_piece.offset, n);
            now = now.subspan(n == 0 && m_piece.target == Target::Table ? 1 : 0);
            known[n] = std::all_of(now.begin(), now.end(), [](Byte b) { return b == 0; });
        }
        std::vector<Byte> state = m_piece.bytes;
        for (const Piece *piece : m_writes) {
            lay(*piece, state);
            for (std::size_t n = 0; n < known.size(); ++n) {
                const ByteView now = sectorPart(disk, m_piece.offset, n);
                const ByteView then = sectorPart(state, m_piece.offset, n);
                const ByteView held =
                    now.first(heldIn(now.data() - disk.data(), now.size(), there));
                known[n] = known[n] || std::equal(held.begin(), held.end(), then.begin()) ||
                           (piece->sameRange(m_piece) && crc32c(now) == piece->before[n]);
            }
        }
        return std::find(known.begin(), known.end(), false) == known.end();
    }

private:
    static std::size_t heldIn(std::ptrdiff_t from, std::size_t length, std::size_t there)
    {
        const auto start = static_cast<std::size_t>(from);
        return there <= start ? 0 : std::min(length, there - start);
    }

    void lay(const Piece &piece, std::vector<Byte> &bytes) const
    {
        const std::uint64_t from = std::max(piece.offset, m_piece.offset);
        const std::uint64_t to = std::min(piece.end(), m_piece.end());
        std::copy_n(piece.bytes.begin() + static_cast<std::ptrdiff_t>(from - piece.offset),
                    to - from, bytes.begin() + static_cast<std::ptrdiff_t>(from - m_piece.offset));
    }

    const Piece &m_piece;
    std::vector<const Piece *> m_writes; // from this piece on
};

class Replay
{
public:
    Replay(const std::vector<JournalRecord> &records, const TargetFiles &files, Replaying what)
        : m_records(records), m_files(files), m_what(what)
    {
    }

    Result<ReplayResult> run()
    {
        for (const JournalRecord &record : m_records) {
            for (const Piece &piece : record.pieces)
                m_pieces[static_cast<std::size_t>(piece.target)].push_back(&piece);
        }
        for (const Target target : {Target::Memo, Target::Table, Target::Index}) {
            if (Status status = replayTarget(target); !status.ok())
                return status.error();
        }
        return m_result;
    }

private:
    Status replayTarget(Target target)
    {
        const std::vector<const Piece *> &pieces = m_pieces[static_cast<std::size_t>(target)];
        File *file = m_files.at(target);
        if (!file) {
            m_result.foreign = m_result.foreign || !pieces.empty();
            return {};
        }
        // A header that somebody else wrote means that the places behind the end are theirs.
        bool headFits = true;
        std::vector<bool> fits(pieces.size());
        std::vector<bool> absent(pieces.size()); // some of it behind the end of the file
        std::vector<std::vector<Byte>> disks(pieces.size());
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            disks[i].resize(pieces[i]->bytes.size());
            const Result<std::size_t> got = file->read(pieces[i]->offset, disks[i]);
            if (!got.ok())
                return got.error();
            absent[i] = *got < disks[i].size();
            const std::size_t same = firstOfRange(pieces, i);
            fits[i] = same != i
                          ? fits[same]
                          : Place(pieces, i).explains(disks[i], *got) || grewLate(pieces, i, fits);
            headFits = headFits && (fits[i] || pieces[i]->offset >= kHeads);
            m_result.foreign = m_result.foreign || !fits[i];
        }
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            if (!fits[i] || (pieces[i]->fresh && !headFits) || coveredLater(pieces, i))
                continue;
            const std::vector<Byte> bytes = Place(pieces, i).last();
            if (m_what != Replaying::Everything && !absent[i] && disks[i] == bytes)
                continue;
            m_result.wrote = true;
            if (m_what == Replaying::Nothing)
                continue;
            if (Status status = file->write(pieces[i]->offset, bytes); !status.ok())
                return status;
        }
        return {};
    }

    // Where the file grew in an earlier record it may not have grown yet.
    static bool grewLate(const std::vector<const Piece *> &pieces, std::size_t i,
                         const std::vector<bool> &fits)
    {
        for (std::size_t k = 0; k < i; ++k) {
            if (pieces[k]->fresh && fits[k] && pieces[k]->covers(*pieces[i]))
                return true;
        }
        return false;
    }

    static std::size_t firstOfRange(const std::vector<const Piece *> &pieces, std::size_t i)
    {
        for (std::size_t k = 0; k < i; ++k) {
            if (pieces[k]->sameRange(*pieces[i]))
                return k;
        }
        return i;
    }

    static bool coveredLater(const std::vector<const Piece *> &pieces, std::size_t i)
    {
        for (std::size_t k = i + 1; k < pieces.size(); ++k) {
            if (pieces[k]->covers(*pieces[i]))
                return true;
        }
        return false;
    }

    const std::vector<JournalRecord> &m_records;
    const TargetFiles &m_files;
    Replaying m_what;
    std::array<std::vector<const Piece *>, kTargets> m_pieces;
    ReplayResult m_result;
};

} // namespace

Result<ReplayResult> replay(const std::vector<JournalRecord> &records, const TargetFiles &files,
                            Replaying what)
{
    return Replay(records, files, what).run();
}

} // namespace norvane::engine
