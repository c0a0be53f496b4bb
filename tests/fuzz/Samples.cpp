#include "Samples.h"

#include "db/engine/engine.h"
#include "db/engine/TableCreate.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace norvane::fuzz
{

namespace
{

constexpr std::uint64_t kDiskBytes = 4 * 1024 * 1024; // of each file

void text(Handle table, const char *field, const std::string &value)
{
    f4assignNVB(d4field(table, field), value, static_cast<std::uint32_t>(value.size()));
}

} // namespace

void SmallDisk::put(const std::string &path, ByteView bytes)
{
    test::MemoryContent &file = content(path);
    file.bytes.assign(bytes.begin(), bytes.end());
    file.beforeWrite = [path](std::uint64_t offset, ByteView from) {
        return offset + from.size() <= kDiskBytes
                   ? Status()
                   : Status(Error{ErrorKind::NoSpace, path, "the disk is full"});
    };
}

TwoFiles::TwoFiles(ByteView input)
{
    if (input.size() < 4)
        return;
    const ByteView rest = input.subspan(4);
    const std::size_t length = std::min<std::size_t>(getLe32(input.data()), rest.size());
    first = rest.first(length);
    second = rest.subspan(length);
}

std::vector<Byte> joined(ByteView first, ByteView second)
{
    std::vector<Byte> bytes(4);
    putLe32(bytes.data(), static_cast<std::uint32_t>(first.size()));
    bytes.insert(bytes.end(), first.begin(), first.end());
    bytes.insert(bytes.end(), second.begin(), second.end());
    return bytes;
}

const TableDef &sampleTable()
{
    constexpr const char *live = ".NOT.DELETED()";
    static const TableDef table{{{"ROWID", 'N', 0, 11, 0},
                                 {"NAME", 'C', 0, 24, 0},
                                 {"AMOUNT", 'N', 0, 12, 2},
                                 {"DAY", 'D', 0, 8, 0},
                                 {"YES", 'L', 0, 1, 0},
                                 {"NOTES", 'M', 0, 10, 0},
                                 {"MORE", 'M', 0, 10, 0}},
                                {{"ROWID", "ROWID", live},
                                 {"NAME", "UPPER(NAME)", live},
                                 {"AMOUNT", "AMOUNT", ""},
                                 {"DAY", "DAY", live}}};
    return table;
}

void makeSample(SmallDisk &disk, int rows)
{
    const TablePaths paths{"sample.dbf", "sample.cdx", "sample.fpt"};
    if (!createTable(disk, sampleTable(), paths).ok())
        std::abort();
    const Handle session = d4init_v(&disk);
    code4accessMode(session, 1);
    const Handle table = d4open(session, "sample.dbf");
    for (int i = 1; i <= rows; ++i) {
        d4appendStartVB(table, 0);
        d4blank(table);
        f4assignLong(d4field(table, "rowid"), i * 7 % 1000);
        text(table, "name", "Name " + std::to_string(i * 31 % 97));
        f4assignDouble(d4field(table, "amount"), i * 1.25 - 40);
        text(table, "day", i % 4 == 0 ? "" : "200" + std::to_string(i % 10) + "0315");
        text(table, "yes", i % 2 == 0 ? "T" : "F");
        const std::string notes(static_cast<std::size_t>(i % 5 * 30), 'n');
        f4memoAssignN(d4field(table, "notes"), notes, static_cast<std::uint32_t>(notes.size()));
        d4append(table);
        if (i % 9 == 0)
            d4delete(table);
        d4unlock(table);
    }
    d4initUndo(session);
}

} // namespace norvane::fuzz
