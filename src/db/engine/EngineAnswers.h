// How the functions of the face turn outcomes into codes; included by the Engine*.cpp files only.
#pragma once

#include "db/engine/HandleRegistry.h"
#include "db/engine/Session.h"

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

} // namespace norvane::engine
