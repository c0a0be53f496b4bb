// What can be imported, under the names of the command line, and how a file is brought in.
#pragma once

#include "ctl/Console.h"
#include "db/import/clsImportData.h"

#include <QString>
#include <QStringList>

#include <optional>

class clsDB;

namespace ctl
{

struct ImportTarget {
    QString name;   // "customers", "categories" ...
    int listType;   // 0: customers
    QString things; // what the rows are, in a sentence
};

const QList<ImportTarget> &importTargets();
std::optional<ImportTarget> importTarget(const QString &name);
QStringList importTargetNames();

// Checks the whole file first; when it is sound adds its rows to the open database. The rowid of
// each row goes to `eachRow`, when given, as soon as its save is acknowledged. The number of rows
// that were tried; nothing when the file was refused or a row was not stored (said on the
// console).
std::optional<qint32> importFile(clsDB &db, const ImportTarget &target, const QString &path,
                                 const std::function<void(qint32)> &eachRow, Console &console);

} // namespace ctl
