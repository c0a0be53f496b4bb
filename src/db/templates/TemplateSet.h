// One table on its way to becoming a template: made under its data-file names in a working
// folder, filled through the engine, then moved to its place under its template names.
#pragma once

#include "db/engine/engine.h"
#include "db/engine/RowLayout.h"
#include "db/templates/SeedFile.h"

#include <QString>
#include <QStringList>

#include <set>

class TemplateSet
{
public:
    // All operations throw a Failure that says what went wrong.
    TemplateSet(const QString &workDir, const QString &baseName,
                const norvane::engine::TableDef &def);

    // Appends the rows. Each value must fit its field, and each rowid must be one of those that
    // are never given out later: 1 to 999, and new.
    void fill(const SeedFile &seed);
    // Moves the files to `outDir` under the given names, in the order data, index, memo.
    void moveTo(const QString &outDir, const QStringList &names) const;

private:
    void append(norvane::engine::Handle table, const QStringList &fields, const SeedRow &row);
    void assign(norvane::engine::Handle field, const QString &value, const SeedRow &row);
    void checkRowid(const QString &value, const SeedRow &row);

    QString m_path; // of the data file
    std::set<int> m_rowids;
};
