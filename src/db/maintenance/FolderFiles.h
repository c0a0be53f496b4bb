// A data folder as check and repair work on it: its files whatever the case of their names, and an
// engine session of its own that knows our tables.
#pragma once

#include "db/engine/engine.h"
#include "db/Schema.h"

#include <QHash>
#include <QString>

namespace maintenance
{

class FolderFiles
{
public:
    explicit FolderFiles(const QString &dir);
    ~FolderFiles();
    FolderFiles(const FolderFiles &) = delete;
    FolderFiles &operator=(const FolderFiles &) = delete;

    const QString &folder() const { return m_dir; }
    norvane::engine::Handle session() const { return m_session; }
    // False when no file of a database is there at all.
    bool hasDatabase() const;
    // The path as the file is written in the folder; empty when it is missing.
    QString pathOf(const QString &file) const;
    bool has(const schema::TableInfo &table) const; // all its files
    void lookAgain();

private:
    QString m_dir;
    norvane::engine::Handle m_session;
    QHash<QString, QString> m_there; // lower-case name to name in the folder
};

// "/data/nvncat.cdx" or "C:\\data\\nvncat.cdx": the name alone.
QString fileName(const std::string &path);

} // namespace maintenance
