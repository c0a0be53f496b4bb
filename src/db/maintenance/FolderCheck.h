// A full check of a data folder: files, tables with their indexes and memos, identifiers and
// counters. Works on the files alone, without a login.
#pragma once

#include "db/maintenance/FolderFiles.h"

#include <QHash>
#include <QList>
#include <QString>

#include <string>
#include <vector>

namespace maintenance
{

struct Finding {
    QString file;
    QString text;
    QString advice;
    bool serious = true; // false: worth knowing, nothing is broken
    qint64 count = 1;    // how many it stands for
};

class FolderCheck
{
public:
    explicit FolderCheck(const QString &dir) : m_files(dir) {}

    // False when no file of a database is there at all.
    bool hasDatabase() const { return m_files.hasDatabase(); }
    // Changes nothing but what any opening mends: a save that a station left unfinished, and counts
    // and tags that the rows prove wrong. Once for an object.
    const QList<Finding> &run();
    // The files of one table alone, without what binds it to the others.
    const QList<Finding> &run(const schema::TableInfo &table);

private:
    using Handle = norvane::engine::Handle;

    // What one pass over the rows of a table tells.
    struct RowFacts {
        bool read = false;
        qint32 highest = 0; // of deleted rows too: a number is never given twice
        QHash<qint32, int> live;
    };

    void checkFiles(const schema::TableInfo &table);
    void checkTable(const schema::TableInfo &table);
    void explain(const schema::TableInfo &table, const std::vector<std::string> &lines);
    void checkFields(const schema::TableInfo &table, Handle handle);
    void checkRows(const schema::TableInfo &table, Handle handle);
    void checkIdentifiers(const schema::TableInfo &table, const RowFacts &facts);
    void checkCounters();
    void checkCounter(const schema::TableInfo &table, const QList<qint32> &counters);
    void checkReferences();
    void checkReference(schema::Table from, const char *field, schema::Table to);
    Handle open(const schema::TableInfo &table);
    void add(const QString &file, const QString &text, const QString &advice, bool serious = true);

    FolderFiles m_files;
    QHash<int, RowFacts> m_facts; // by schema::Table
    QList<Finding> m_findings;
};

} // namespace maintenance
