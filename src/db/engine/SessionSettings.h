// What a session hands to its tables and their files; outlives them.
#pragma once

#include "db/engine/LockWait.h"
#include "db/engine/TableJournal.h"

namespace norvane::engine
{

struct SessionSettings {
    bool exclusive = false;
    bool readOnly = false;
    bool lockEnforce = true;
    bool reportTagNames = true;
    Durability durability = Durability::Full;
    LockPatience patience;
};

} // namespace norvane::engine
