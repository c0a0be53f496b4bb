// Puts right what FolderCheck finds in a data folder, as far as the files themselves prove what is
// right: missing indexes, row counts, tags, unfinished saves, counters. Never guesses: what would
// lose something is left as it is and told.
#pragma once

#include "db/maintenance/FolderFiles.h"

#include <QList>
#include <QString>

namespace maintenance
{

struct RepairStep {
    QString file;
    QString text;
    bool mended = true; // false: left as it is
};

class FolderRepair
{
public:
    explicit FolderRepair(const QString &dir) : m_files(dir) {}

    // Needs every table alone; one that another station has open is left, and told.
    const QList<RepairStep> &run();

private:
    using Handle = norvane::engine::Handle;

    void restoreFiles(const schema::TableInfo &table);
    void repairTable(const schema::TableInfo &table);
    void repairCounters();
    void repairCounter(const schema::TableInfo &table, Handle counters);
    qint32 highestIdentifier(const schema::TableInfo &table);
    void add(const QString &file, const QString &text, bool mended);

    FolderFiles m_files;
    QList<RepairStep> m_steps;
};

} // namespace maintenance
