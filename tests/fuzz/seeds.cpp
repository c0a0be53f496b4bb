// Writes small inputs for every fuzz target into FOLDER/<target>: norvane_fuzz_seeds FOLDER
#include "db/engine/engine.h"
#include "db/engine/TableCreate.h"
#include "db/Schema.h"
#include "Samples.h"

#include <filesystem>
#include <fstream>
#include <iostream>

using namespace norvane::fuzz;

namespace
{

void save(const std::string &folder, const std::string &name, ByteView bytes)
{
    std::filesystem::create_directories(folder);
    std::ofstream file(folder + '/' + name, std::ios::binary);
    file << asText(bytes);
}

void saveSamples(const std::string &folder)
{
    for (const int rows : {0, 3, 40}) {
        SmallDisk disk;
        makeSample(disk, rows);
        const std::string name = std::to_string(rows) + "_rows";
        save(folder + "/table_memo", name,
             joined(disk.bytes("sample.dbf"), disk.bytes("sample.fpt")));
        if (rows == 0 || rows == 40)
            save(folder + "/index", name, disk.bytes("sample.cdx"));
    }
}

// A table of another program's kind: binary memo pointers and integers.
void saveWide(const std::string &folder)
{
    const TableDef def{{{"ID", 'N', 0, 8, 0}, {"TEXT", 'C', 0, 9, 0}, {"NOTES", 'M', 0, 10, 0}},
                       {}};
    SmallDisk disk;
    if (!createTable(disk, def, {"w.dbf", "", "w.fpt"}).ok())
        return;
    std::vector<Byte> table(disk.bytes("w.dbf").begin(), disk.bytes("w.dbf").end());
    constexpr std::size_t first = 32, type = 11, length = 16, last = first + 2 * 32;
    table[0] = 0x30;
    table[28] = 2;
    table[first + type] = 'I';
    table[first + length] = 4;
    table[last + length] = 4;
    table[10] = 1 + 4 + 9 + 4;
    save(folder + "/table_memo", "wide", joined(table, disk.bytes("w.fpt")));
}

// The journal that a few saves leave beside the table of 12 rows.
void saveJournals(const std::string &folder)
{
    for (const int saves : {1, 3}) {
        SmallDisk disk;
        makeSample(disk, 12);
        const Handle session = d4init_v(&disk);
        const Handle table = d4open(session, "sample.dbf");
        for (int i = 1; i <= saves; ++i) {
            d4go(table, static_cast<std::uint32_t>(i));
            d4lock(table, static_cast<std::uint32_t>(i));
            f4assignLong(d4field(table, "rowid"), 500 + i);
            f4memoAssignN(d4field(table, "notes"), "new text", 8);
            d4unlock(table);
        }
        ByteView journal = disk.bytes("sample.nvj");
        while (!journal.empty() && journal.back() == 0)
            journal = journal.first(journal.size() - 1);
        save(folder + "/journal", std::to_string(saves) + "_saves", journal);
        d4initUndo(session);
    }
}

void saveCatalogue(const std::string &folder)
{
    SmallDisk disk;
    if (!createTable(disk, schema::reportColumnsDef(), {"c.dbf", "c.cdx", ""}).ok())
        return;
    const Handle session = d4init_v(&disk);
    const Handle table = d4open(session, "c.dbf");
    for (int i = 0; i < 8; ++i) {
        d4appendStartVB(table, 0);
        d4blank(table);
        f4assignLong(d4field(table, "rowid"), 1000 + i);
        f4assignNVB(d4field(table, "rpttype"), "1", 1);
        f4assignNVB(d4field(table, "fldname"), "COMPANY", 7);
        f4assignLong(d4field(table, "order"), 8 - i);
        d4append(table);
        d4unlock(table);
    }
    d4initUndo(session);
    save(folder + "/catalogue", "8_columns", joined(disk.bytes("c.dbf"), disk.bytes("c.cdx")));
}

void saveTexts(const std::string &folder)
{
    const auto text = [&](const char *name, std::string_view bytes) {
        save(folder + "/csv", name, asBytes(bytes));
    };
    text("customers",
         "LastName,Company,Notes,Category\r\n\"O'Hara\",\"Ltd, \"\"The\"\"\",,Retail\r\n"
         "Smith,,\"two\",\n\nonly one\r\na,b,c,d,e\r\n\x1A");
    text("utf8", "\xEF\xBB\xBFLASTNAME,COMPANY\nM\xC3\xBCller,\"Caf\xC3\xA9\"\n");
    text("list", "Description\r\nOpen\r\n\"Closed\"\r\n\"\"\r\n");
}

void saveDefinitions(const std::string &folder)
{
    const auto text = [&](const char *name, std::string_view bytes) {
        save(folder + "/definition", name, asBytes(bytes));
    };
    text("columns", "0\n1~2~3\n\n\n\n1\n1");
    text("criteria", "1\n3~1\n7~8\n=~#\n17~4\n0\n0");
    text("old", "1\n3\xFE"
                "1\n7\xFE"
                "8\n=\xFE#\n17\xFE"
                "4\n0\n0");
    text("criterion", "Status # 'Closed' [17]");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "norvane_fuzz_seeds FOLDER\n";
        return 2;
    }
    saveSamples(argv[1]);
    saveWide(argv[1]);
    saveJournals(argv[1]);
    saveCatalogue(argv[1]);
    saveTexts(argv[1]);
    saveDefinitions(argv[1]);
    return 0;
}
