#include "db/StationWatch.h"

#include "db/engine/Crc32c.h"
#include "db/engine/LockPlaces.h"

#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <thread>

using namespace norvane::engine;

namespace
{

// A place: magic, flags, the station's draw, its count, a sum of these; the rest is blank.
constexpr std::uint32_t Magic = 0x3153564E; // "NVS1"
constexpr std::size_t FlagsAt = 4;
constexpr std::size_t IdAt = 8;
constexpr std::size_t BeatsAt = 16;
constexpr std::size_t SumAt = 24;
constexpr std::uint32_t FoundDeaf = 1;

constexpr int Patience = 3; // looks; the other may be late
constexpr std::chrono::milliseconds ProbeTime{3500};
constexpr std::chrono::milliseconds ProbePause{50};

bool readAll(File &file, ByteSpan into)
{
    std::fill(into.begin(), into.end(), Byte{0});
    return file.read(0, into).ok();
}

std::uint64_t lockByte(std::size_t place)
{
    return recordLockByte(static_cast<std::uint32_t>(place + 1));
}

} // namespace

StationWatch::Finding StationWatch::start(FileSystem &files, const std::string &path)
{
    stop();
    m_files = &files;
    m_path = path;
    m_id = QRandomGenerator::system()->generate64();
    if (!open() && !m_refusal.empty())
        m_finding = Finding::Refused;
    return m_finding;
}

void StationWatch::stop()
{
    if (m_file)
        erase(m_own);
    m_file.reset();
    m_files = nullptr;
    m_finding = Finding::None;
    m_refusal.clear();
}

bool StationWatch::open()
{
    Result<std::unique_ptr<File>> file = m_files->open(m_path, OpenMode::ReadWrite);
    if (!file.ok() && file.error().kind == ErrorKind::NotFound) {
        file = m_files->open(m_path, OpenMode::CreateNew);
        if (!file.ok()) // another station may have been faster
            file = m_files->open(m_path, OpenMode::ReadWrite);
    }
    if (!file.ok())
        return false;
    m_file = std::move(*file);
    m_suspects.fill(0);
    const bool begun = takePlace() && readAll(*m_file, m_seen) && write();
    if (!begun)
        m_file.reset();
    return begun;
}

bool StationWatch::takePlace()
{
    for (m_own = 0; m_own < Places; ++m_own) {
        if (tryLock(m_own))
            return true;
        if (!m_refusal.empty())
            return false;
    }
    return false; // more stations than places: this one is not watched
}

bool StationWatch::tryLock(std::size_t place)
{
    const Status locked = m_file->tryLock(lockByte(place), 1, LockMode::Exclusive);
    m_refusal = locked.error().kind == ErrorKind::Io ? locked.error().detail : std::string();
    return locked.ok();
}

StationWatch::Finding StationWatch::beat()
{
    if (m_files == nullptr)
        return Finding::None;
    // What goes wrong gives the place back, and the next beat begins anew.
    if (!m_file)
        open();
    else if (!look(false) || !write())
        m_file.reset();
    return m_finding;
}

StationWatch::Finding StationWatch::probe()
{
    if (!m_file)
        return m_finding;
    std::vector<std::size_t> doubtful;
    for (std::size_t place = 0; place < Places; ++place) {
        if (isStranger(place) && (place == m_own || tryLock(place))) {
            m_suspects[place] = Patience;
            doubtful.push_back(place);
        }
    }
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + ProbeTime;
    while (!doubtful.empty() && m_finding == Finding::None && Clock::now() < end) {
        std::this_thread::sleep_for(ProbePause);
        if (!look(true)) {
            m_file.reset();
            return m_finding;
        }
    }
    for (const std::size_t place : doubtful) {
        if (place != m_own && m_finding == Finding::None)
            erase(place);
        acquit(place);
    }
    return m_finding;
}

// A file opened afresh shows what other hosts wrote; one kept open may show what it held before.
// Both then show the same, unless somebody has put another file in its place.
bool StationWatch::look(bool patient)
{
    const Image before = m_seen;
    Image kept;
    for (int tries = 0; tries < 3; ++tries) {
        const Result<std::unique_ptr<File>> fresh = m_files->open(m_path, OpenMode::ReadOnly);
        if (!fresh.ok() || !readAll(**fresh, m_seen) || !readAll(*m_file, kept))
            return false;
        if (kept != m_seen)
            continue; // written between the two
        for (std::size_t place = 0; place < Places; ++place) {
            const std::size_t at = place * PlaceSize;
            judge(place, std::memcmp(&before[at], &m_seen[at], PlaceSize) != 0, patient);
        }
        return true;
    }
    return false;
}

void StationWatch::judge(std::size_t place, bool moved, bool patient)
{
    if (!isStranger(place)) {
        if (place != m_own) // there strangers are written over
            acquit(place);
    } else if (!moved) {
        if (m_suspects[place] == 1)
            acquit(place);
        else if (!patient && m_suspects[place] > 1)
            --m_suspects[place];
    } else if (m_suspects[place] > 0 ||
               // Found by another one, whose lock may well be respected here.
               (getLe32(&m_seen[place * PlaceSize + FlagsAt]) & FoundDeaf) != 0) {
        m_finding = Finding::Deaf;
    } else if (place == m_own || tryLock(place)) {
        m_suspects[place] = Patience;
    }
}

bool StationWatch::isStranger(std::size_t place) const
{
    const Byte *at = &m_seen[place * PlaceSize];
    return getLe32(at) == Magic && getLe32(at + SumAt) == crc32c(ByteView(at, SumAt)) &&
           getLe64(at + IdAt) != m_id;
}

void StationWatch::acquit(std::size_t place)
{
    const bool locked = m_suspects[place] > 0;
    m_suspects[place] = 0;
    if (locked && place != m_own)
        (void)m_file->unlock(lockByte(place), 1);
}

bool StationWatch::write()
{
    std::array<Byte, PlaceSize> bytes{};
    putLe32(bytes.data(), Magic);
    putLe32(&bytes[FlagsAt], m_finding == Finding::Deaf ? FoundDeaf : 0);
    putLe64(&bytes[IdAt], m_id);
    putLe64(&bytes[BeatsAt], ++m_beats);
    putLe32(&bytes[SumAt], crc32c(ByteView(bytes).first(SumAt)));
    const bool written = m_file->write(m_own * PlaceSize, bytes).ok();
    return written && (!m_file->onNetwork() || m_file->sync().ok());
}

void StationWatch::erase(std::size_t place)
{
    const std::array<Byte, PlaceSize> blank{};
    if (m_file->write(place * PlaceSize, blank).ok() && m_file->onNetwork())
        (void)m_file->sync();
}
