#include "db/maintenance/FolderFiles.h"

#include "db/TableUse.h"

#include <QDir>

#include <algorithm>

using namespace norvane::engine;

namespace maintenance
{

namespace
{

constexpr int LockAttempts = 10;

} // namespace

FolderFiles::FolderFiles(const QString &dir) : m_dir(dir), m_session(d4init_v())
{
    code4lockAttempts(m_session, LockAttempts);
    code4errTagName(m_session, 0);
    expectOurTags(m_session);
    lookAgain();
}

FolderFiles::~FolderFiles()
{
    d4initUndo(m_session);
}

void FolderFiles::lookAgain()
{
    m_there.clear();
    const QStringList files = QDir(m_dir).entryList(QDir::Files);
    for (const QString &file : files)
        m_there.insert(file.toLower(), file);
}

bool FolderFiles::hasDatabase() const
{
    const auto &tables = schema::tables();
    return std::any_of(tables.begin(), tables.end(), [this](const schema::TableInfo &table) {
        const QStringList files = table.files();
        return std::any_of(files.begin(), files.end(),
                           [this](const QString &file) { return !pathOf(file).isEmpty(); });
    });
}

QString FolderFiles::pathOf(const QString &file) const
{
    const auto found = m_there.constFind(file.toLower());
    return found == m_there.constEnd() ? QString() : QDir(m_dir).filePath(*found);
}

bool FolderFiles::has(const schema::TableInfo &table) const
{
    const QStringList files = table.files();
    return std::none_of(files.begin(), files.end(),
                        [this](const QString &file) { return pathOf(file).isEmpty(); });
}

QString fileName(const std::string &path)
{
    return QString::fromStdString(path).section(u'/', -1).section(u'\\', -1);
}

} // namespace maintenance
