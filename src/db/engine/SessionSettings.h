// What a session hands to its tables and their files; outlives them.
#pragma once

#include "db/engine/LockWait.h"
#include "db/engine/RowLayout.h"
#include "db/engine/TableJournal.h"

#include <map>
#include <string>
#include <vector>

namespace norvane::engine
{

struct SessionSettings {
    bool exclusive = false;
    bool readOnly = false;
    bool lockEnforce = true;
    bool reportTagNames = true;
    Durability durability = Durability::Full;
    LockPatience patience;
    std::map<std::string, std::vector<TagDef>> expectedTags; // by lower-case base name
};

} // namespace norvane::engine
