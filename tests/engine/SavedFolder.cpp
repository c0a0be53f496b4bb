#include "engine/SavedFolder.h"

#include <filesystem>

namespace enginetest
{

void SavedFolder::SetUp()
{
    makeTable(m_path, peopleTable());
    const TestSession session;
    const std::vector<Save> before = {insertOf(1, "x"), insertOf(2, "short"), insertOf(3)};
    ASSERT_EQ(performSaves(session, m_path, before), before.size());
    for (const Save &save : before)
        note(m_people, save);
    for (const char *part : {"people.dbf", "people.cdx", "people.fpt", "people.nvj"})
        m_sound.emplace_back(m_folder / part, readFile(m_folder / part));
}

void SavedFolder::restore(bool withJournal)
{
    for (const auto &[path, bytes] : m_sound)
        writeFile(path, bytes);
    if (!withJournal)
        std::filesystem::remove(m_folder / "people.nvj");
}

std::string SavedFolder::compareFiles(const People &expected, const People *other,
                                      bool *found) const
{
    SimDisk disk;
    disk.boot = systemFiles().bootMark();
    for (const auto &[path, bytes] : m_sound) {
        if (std::filesystem::exists(path))
            disk.files["/" + std::filesystem::path(path).filename().string()] =
                std::make_shared<SimDisk::Content>(SimDisk::Content{readFile(path), {}});
    }
    return compare(disk, expected, other, found);
}

void SavedFolder::saveMore(Handle session, const People &people)
{
    const TestSession other;
    ASSERT_EQ(performSaves(session, m_path, {insertOf(901)}), 1U) << lastError(session).detail;
    ASSERT_EQ(performSaves(other, m_path, {insertOf(902)}), 1U) << lastError(other).detail;
    People then = people;
    note(then, insertOf(901));
    note(then, insertOf(902));
    ASSERT_EQ(compareFiles(then), "");
}

std::size_t SavedFolder::openFiles()
{
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

} // namespace enginetest
