// The face: moves, locks and writes.
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"

namespace norvane::engine
{

Code d4top(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.top(); });
}

Code d4bottom(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.bottom(); });
}

Code d4skip(Handle table, std::int32_t count)
{
    return answerOf(table, [&](Table &rows) { return rows.skip(count); });
}

Code d4go(Handle table, std::uint32_t record)
{
    return answerOf(table, [&](Table &rows) { return rows.go(record); });
}

Code d4seek(Handle table, std::string_view key)
{
    return answerOf(table, [&](Table &rows) { return rows.seek(key); });
}

Code d4seekDouble(Handle table, double key)
{
    return answerOf(table, [&](Table &rows) { return rows.seek(key); });
}

Code d4seekNext(Handle table, std::string_view key)
{
    return answerOf(table, [&](Table &rows) { return rows.seekNext(key); });
}

Code d4seekNextDouble(Handle table, double key)
{
    return answerOf(table, [&](Table &rows) { return rows.seekNext(key); });
}

Code d4lock(Handle table, std::uint32_t record)
{
    return withTable(handleRegistry().table(table), r4failure, [&](OpenTable &open) {
        const Status status = open.table.lock(record);
        const bool refused = !status.ok() && status.error().kind == ErrorKind::Locked;
        return answer(open, status, refused ? Session::Answer::Expected : Session::Answer::Failure);
    });
}

Code d4unlock(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.unlock(); });
}

Code d4flush(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.flush(); });
}

void d4discard(Handle table)
{
    if (OpenTable *open = handleRegistry().table(table))
        open->table.discard();
}

Code d4delete(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.deleteRow(); });
}

bool d4deleted(Handle table)
{
    const OpenTable *open = handleRegistry().table(table);
    return open && open->table.deleted();
}

Code d4appendStartVB(Handle table, int /*useMemoEntries*/)
{
    return answerOf(table, [&](Table &rows) { return rows.startAppend(); });
}

Code d4blank(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.blank(); });
}

Code d4append(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.append(); });
}

Code d4groupBegin(Handle table)
{
    return answerOf(table, [](Table &rows) {
        rows.beginGroup();
        return Status();
    });
}

Code d4groupEnd(Handle table)
{
    return answerOf(table, [](Table &rows) { return rows.endGroup(); });
}

Code d4groupDrop(Handle table)
{
    return answerOf(table, [](Table &rows) { return rows.dropGroup(); });
}

Code d4reindex(Handle table)
{
    return answerOf(table, [&](Table &rows) { return rows.reindex(); });
}

Code d4passLostMemos(Handle table)
{
    return answerOf(table, [](Table &rows) { return rows.passLostMemos(); });
}

} // namespace norvane::engine
