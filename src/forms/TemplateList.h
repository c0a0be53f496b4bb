// The list of issue templates, as the windows that show it load it.
#pragma once

#include "db/clsDB.h"

class ListView;

namespace templates
{

inline constexpr int kNameLength = 120; // the width of the field

// Whether a new issue asks for a template, in this database.
bool enabled();
void setEnabled(bool enabled);

// Where the names are kept.
clsDB::ListTable table();
// One column that heads the list.
void setUp(ListView *list);
// Behind the items that are there; the selection stays.
void addAll(ListView *list);

} // namespace templates
