// The face: check and repair.
#include "db/engine/Cleanup.h"
#include "db/engine/engine.h"
#include "db/engine/EngineAnswers.h"
#include "db/engine/TableCheck.h"
#include "db/engine/TableRepair.h"

#include <algorithm>
#include <new>
#include <utility>

namespace norvane::engine
{

namespace
{

Code repairAlone(Session &owner, const std::string &path, std::vector<RepairLine> &report)
{
    const Result<OpenTable *> open = owner.openTable(path);
    if (!open.ok()) {
        const bool locked = open.error().kind == ErrorKind::Locked;
        owner.note(open.error(), Session::Answer::Expected);
        return locked ? d4locked : r4failure;
    }
    Cleanup close([&] { (void)owner.closeTable(*open); });
    Status status = repairTable((*open)->table.files(), report);
    close.cancel();
    const Status closed = owner.closeTable(*open);
    if (status.ok())
        status = closed;
    if (!status.ok())
        owner.note(status.error(), Session::Answer::Expected);
    const bool sound = std::all_of(report.begin(), report.end(),
                                   [](const RepairLine &line) { return line.mended; });
    return status.ok() && sound ? r4success : r4failure;
}

} // namespace

void d4expectTags(Handle session, std::string_view baseName, std::vector<TagDef> tags)
{
    if (Session *found = handleRegistry().session(session))
        found->settings.expectedTags[inLowerCase(baseName)] = std::move(tags);
}

const Error &d4damage(Handle table)
{
    static const Error noTable{ErrorKind::Misuse, {}, "no such table"};
    OpenTable *open = handleRegistry().table(table);
    return open ? open->table.files().damage() : noTable;
}

std::vector<std::string> d4check(Handle table)
{
    OpenTable *open = handleRegistry().table(table);
    if (!open)
        return {"no such table"};
    std::vector<std::string> failed = {"out of memory"}; // empty would mean sound
    return withTable(open, std::move(failed), [](OpenTable &own) {
        std::vector<std::string> lines;
        for (CheckFinding &finding : checkTable(own.table.files(), own.session.settings.patience))
            lines.push_back(std::move(finding.text));
        return lines;
    });
}

Code d4repair(Handle session, std::string_view path, std::vector<RepairLine> &report)
{
    Session *owner = handleRegistry().session(session);
    if (!owner)
        return r4failure;
    const bool before = std::exchange(owner->settings.exclusive, true);
    const Cleanup restore([&] { owner->settings.exclusive = before; });
    try {
        return repairAlone(*owner, std::string(path), report);
    } catch (const std::bad_alloc &) {
        owner->noteNoMemory();
        return r4failure;
    }
}

} // namespace norvane::engine
