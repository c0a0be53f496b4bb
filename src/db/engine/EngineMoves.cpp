// The face: moves, locks and writes.
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"

namespace norvane::engine
{

Code d4top(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.top()) : r4failure;
}

Code d4bottom(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.bottom()) : r4failure;
}

Code d4skip(Handle table, std::int32_t count)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.skip(count)) : r4failure;
}

Code d4go(Handle table, std::uint32_t record)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.go(record)) : r4failure;
}

Code d4seek(Handle table, std::string_view key)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.seek(key)) : r4failure;
}

Code d4seekDouble(Handle table, double key)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.seek(key)) : r4failure;
}

Code d4seekNext(Handle table, std::string_view key)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.seekNext(key)) : r4failure;
}

Code d4seekNextDouble(Handle table, double key)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.seekNext(key)) : r4failure;
}

Code d4lock(Handle table, std::uint32_t record)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return r4failure;
    const Status status = open->table.lock(record);
    const bool refused = !status.ok() && status.error().kind == ErrorKind::Locked;
    return answer(*open, status, refused ? Session::Answer::Expected : Session::Answer::Failure);
}

Code d4unlock(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.unlock()) : r4failure;
}

Code d4flush(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.flush()) : r4failure;
}

void d4discard(Handle table)
{
    if (OpenTable *open = handleRegistry().table(table))
        open->table.discard();
}

Code d4delete(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.deleteRow()) : r4failure;
}

bool d4deleted(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open && open->table.deleted();
}

Code d4appendStartVB(Handle table, int /*useMemoEntries*/)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.startAppend()) : r4failure;
}

Code d4blank(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.blank()) : r4failure;
}

Code d4append(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.append()) : r4failure;
}

Code d4reindex(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    return open ? answer(*open, open->table.reindex()) : r4failure;
}

} // namespace norvane::engine
