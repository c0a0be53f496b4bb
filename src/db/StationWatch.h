// Watches whether the record locks of the stations in a folder reach each other; on some network
// mounts they silently do not. Each open database holds the lock of a place of its own in a small
// file of the folder and counts a number up there. Numbers that move in a place whose lock can be
// had here belong to a station whose locks do not reach this one (docs/locking.md).
#pragma once

#include "db/engine/File.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class StationWatch
{
public:
    enum class Finding {
        None,
        Refused, // the folder gives no locks at all
        Deaf     // the locks of two stations do not reach each other
    };
    // How often beat() wants to be called.
    static constexpr std::chrono::seconds Interval{2};

    StationWatch() = default;
    ~StationWatch() { stop(); }
    StationWatch(const StationWatch &) = delete;
    StationWatch &operator=(const StationWatch &) = delete;

    // Takes a place in the station file at `path`, which is made when it is not there. A folder
    // that takes no file is not watched: nothing can be written there anyway. What else goes wrong
    // is tried again by beat().
    Finding start(norvane::engine::FileSystem &files, const std::string &path);
    // Counts on, and looks what the others did since the last call. What it found once stays.
    Finding beat();
    // For programs that end before they would beat: waits at places that are in use though their
    // locks can be had, until somebody counts on there (deaf) or has had the time to; whoever died
    // there is cleared away. When there is no such place, which is the rule, it does not wait.
    Finding probe();
    // Gives the place back. Nothing is watched any more.
    void stop();

    const std::string &refusal() const { return m_refusal; } // the system's words for Refused

private:
    static constexpr std::size_t Places = 128;
    static constexpr std::size_t PlaceSize = 32;
    using Image = std::array<norvane::engine::Byte, Places * PlaceSize>;

    bool open();
    bool takePlace();
    bool tryLock(std::size_t place);
    bool look(bool patient);
    void judge(std::size_t place, bool moved, bool patient);
    bool isStranger(std::size_t place) const;
    void acquit(std::size_t place);
    bool write();
    void erase(std::size_t place);

    norvane::engine::FileSystem *m_files = nullptr;
    std::string m_path;
    std::unique_ptr<norvane::engine::File> m_file; // null: no place now
    std::size_t m_own = 0;
    std::uint64_t m_id = 0;
    std::uint64_t m_beats = 0;
    Image m_seen{}; // as of the last look
    // Places where a stranger counted and whose lock is held here since then: how many more looks
    // are spent on them. The next count is proof.
    std::array<int, Places> m_suspects{};
    Finding m_finding = Finding::None;
    std::string m_refusal;
};
