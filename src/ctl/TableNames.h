// The names that tables have on the command line.
#pragma once

#include "db/Schema.h"

#include <QString>
#include <QStringList>

namespace ctl
{

QStringList tableNames(); // "customers", "subscriptions", ...
// The table of that name, base name ("nvncust") or file name; null when there is none.
const schema::TableInfo *tableNamed(const QString &name);

} // namespace ctl
