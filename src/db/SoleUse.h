// While one lives, tables are opened in sole use: no other station has them open then, and an
// opening fails when one does. Without lock enforcement rows are changed without locks.
#pragma once

#include "db/engine/engine.h"

class SoleUse
{
public:
    enum class Locks { Enforced, NotNeeded };

    explicit SoleUse(norvane::engine::Handle session, Locks locks = Locks::Enforced)
        : m_session(session), m_locks(locks)
    {
        norvane::engine::code4accessMode(m_session, 1);
        if (m_locks == Locks::NotNeeded)
            norvane::engine::code4lockEnforce(m_session, 0);
    }
    ~SoleUse()
    {
        norvane::engine::code4accessMode(m_session, 0);
        if (m_locks == Locks::NotNeeded)
            norvane::engine::code4lockEnforce(m_session, 1);
    }
    SoleUse(const SoleUse &) = delete;
    SoleUse &operator=(const SoleUse &) = delete;

private:
    norvane::engine::Handle m_session;
    Locks m_locks;
};
