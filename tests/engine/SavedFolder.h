// A table of three people in files of the system, put back as it was for each trial of a test, and
// compared as another station would find it.
#pragma once

#include "engine/SimPeople.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace enginetest
{

class SavedFolder : public testing::Test
{
protected:
    void SetUp() override;

    // The files as they were; without a journal as if nobody had saved yet.
    void restore(bool withJournal);
    // As compare() has it; the files are not changed by it.
    std::string compareFiles(const People &expected, const People *other = nullptr,
                             bool *found = nullptr) const;
    // Two more saves by this session and by another one, and all of them there.
    void saveMore(Handle session, const People &people);
    // Descriptors this process has open.
    static std::size_t openFiles();

    TempFolder m_folder;
    std::string m_path = m_folder / "people.dbf";
    std::vector<std::pair<std::string, Bytes>> m_sound;
    People m_people;
};

} // namespace enginetest
