// How the functions of the face turn outcomes into codes; included by the Engine*.cpp files only.
#pragma once

#include "db/engine/HandleRegistry.h"
#include "db/engine/Session.h"

#include <new>

namespace norvane::engine
{

inline Code answer(OpenTable &open, const Status &status,
                   Session::Answer kind = Session::Answer::Failure)
{
    if (status.ok())
        return r4success;
    open.session.note(status.error(), kind);
    return status.error().kind == ErrorKind::Locked ? d4locked : r4failure;
}

inline Code answer(OpenTable &open, const Result<Code> &code)
{
    return code.ok() ? *code : answer(open, code.status());
}

// What a call of the face does once it has its table. The face never throws: when memory runs out,
// what was begun is given up and this is the call's failure.
template <class T, class Work>
T withTable(OpenTable *open, T failed, const Work &work)
{
    if (!open)
        return failed;
    try {
        return work(*open);
    } catch (const std::bad_alloc &) {
        open->table.giveUp();
        open->session.noteNoMemory();
        return failed;
    }
}

// The code of an operation on a table.
template <class Work>
Code answerOf(Handle table, const Work &work)
{
    return withTable(handleRegistry().table(table), r4failure,
                     [&](OpenTable &open) { return answer(open, work(open.table)); });
}

} // namespace norvane::engine
