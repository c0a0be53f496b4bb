// The table of report columns with its index, as reports read it: by number, in the shown order.
#include "db/Schema.h"
#include "Exercise.h"

using namespace norvane::fuzz;

namespace
{

constexpr int kMostColumns = 500;

// The fields by name; a file from elsewhere may lack them or have other kinds.
std::size_t readColumn(Handle table)
{
    std::size_t seen = 0;
    for (const FieldDef &def : schema::reportColumnsDef().fields) {
        const Handle field = d4field(table, def.name);
        if (field <= 0)
            continue;
        const char *bytes = f4ptr(field);
        seen += std::string(bytes, f4len_v(field)).size();
        seen += static_cast<std::size_t>(f4long(field));
    }
    return seen;
}

void readColumns(Handle table)
{
    static volatile std::size_t seen = 0;
    int most = kMostColumns;
    for (Code code = d4top(table); code == r4success && most > 0; --most) {
        seen = seen + readColumn(table);
        code = d4skip(table, 1);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kMostBytes)
        return -1;
    const TwoFiles input(ByteView(data, size));
    SmallDisk disk;
    disk.put("nvnrepcols.dbf", input.first);
    disk.put("nvnrepcols.cdx", input.second);
    const FuzzSession session(disk);
    code4readOnly(session.handle(), 1); // it belongs to the program
    const Handle table = d4open(session.handle(), "nvnrepcols.dbf");
    if (table == 0)
        return 0;
    for (const char *tag : {"ORDER", "ROWID"}) {
        d4tagSelect(table, d4tag(table, tag));
        readColumns(table);
        d4seekDouble(table, 1003);
    }
    d4tagSelect(table, 0);
    readColumns(table);
    d4close(table);
    return 0;
}
