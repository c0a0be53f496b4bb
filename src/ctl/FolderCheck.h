// A full check of a data folder: files, tables with their indexes and memos, identifiers and
// counters. Works on the files alone, without a login.
#pragma once

#include "db/engine/engine.h"
#include "db/Schema.h"

#include <QHash>
#include <QList>
#include <QString>

#include <string>
#include <vector>

namespace ctl
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
    explicit FolderCheck(const QString &dir);
    ~FolderCheck();
    FolderCheck(const FolderCheck &) = delete;
    FolderCheck &operator=(const FolderCheck &) = delete;

    // False when no file of a database is there at all.
    bool hasDatabase() const;
    const QList<Finding> &run();

private:
    using Handle = norvane::engine::Handle;

    // What one pass over the rows of a table tells.
    struct RowFacts {
        bool read = false;
        qint32 highest = 0; // of deleted rows too: a number is never given twice
        QHash<qint32, int> live;
    };

    void checkFiles();
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
    QString pathOf(const QString &file) const; // without regard to case; empty when missing
    void add(const QString &file, const QString &text, const QString &advice, bool serious = true);

    QString m_dir;
    Handle m_session = 0;
    QHash<QString, QString> m_there; // lower-case name to name in the folder
    QHash<int, RowFacts> m_facts;    // by schema::Table
    QList<Finding> m_findings;
};

} // namespace ctl
