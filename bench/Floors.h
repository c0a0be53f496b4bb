// What the machine itself needs for the same work: the calls of the system that cannot be avoided
// on files of these sizes, without an engine around them.
#pragma once

#include <cstdint>
#include <string>

namespace bench
{

class Floors
{
public:
    // `folder`: where our files of `rows` issues are.
    Floors(std::string folder, int rows);

    // Seconds.
    double sortAndWriteKeys() const; // all rows read, eight key columns sorted, their pages written
    double writeRows() const;        // bytes of rows and memos into the cache
    double readRows() const;         // in large blocks, looking at one field of each
    double readMemos() const;        // in large blocks, looking at every byte
    double readAll() const;          // all three files in large blocks
    double rowsOneByOne(int count) const; // single reads at random places

    // Microseconds for one.
    double lookup() const; // three pages and a row under a lock
    double openLookup() const;
    double save(bool durable) const; // counter and row with a journal, five files opened
    double counter(bool durable) const;

    std::uint64_t rowAndMemoBytes() const;

private:
    std::string m_folder;
    std::string m_issues; // path without extension
    int m_rows;
};

} // namespace bench
