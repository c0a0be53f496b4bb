#include "db/engine/TableCreate.h"

#include "db/engine/IndexFile.h"
#include "db/engine/MemoFile.h"
#include "db/engine/TableFormat.h"

#include <functional>

namespace norvane::engine
{

namespace
{

Status makeFile(FileSystem &files, const std::string &path,
                const std::function<Status(File &)> &fill)
{
    Result<std::unique_ptr<File>> file = files.open(path, OpenMode::CreateNew);
    if (!file.ok())
        return file.error();
    Status status = fill(**file);
    if (status.ok())
        status = (*file)->sync();
    file->reset();
    if (!status.ok())
        (void)files.remove(path);
    return status;
}

} // namespace

Status createTable(FileSystem &files, const TableDef &table, const TablePaths &paths)
{
    const Result<RowLayout> layout = layOutFields(table.fields);
    if (!layout.ok())
        return layout.error();
    TableHeader shape;
    shape.layout = *layout;
    const bool withIndex = !table.tags.empty();
    std::vector<std::string> made;
    Status status;
    const auto make = [&](const std::string &path, const std::function<Status(File &)> &fill) {
        if (!status.ok())
            return;
        status = makeFile(files, path, fill);
        if (status.ok())
            made.push_back(path);
    };

    // The table comes last: it is what makes the others be looked for.
    if (shape.hasMemo())
        make(paths.memo, [](File &file) { return file.write(0, makeMemoHeader()); });
    if (withIndex) {
        make(paths.index, [&](File &file) {
            return buildIndex(file, *layout, table.tags,
                              {[](std::uint32_t &, ByteView &) -> Result<bool> { return false; }});
        });
    }
    make(paths.table, [&](File &file) {
        std::vector<Byte> bytes = makeTableHeader(*layout, withIndex, today());
        bytes.push_back(kEndOfFile);
        return file.write(0, bytes);
    });
    if (status.ok())
        status = files.syncFolderOf(paths.table);
    if (!status.ok()) {
        for (const std::string &path : made)
            (void)files.remove(path);
    }
    return status;
}

} // namespace norvane::engine
