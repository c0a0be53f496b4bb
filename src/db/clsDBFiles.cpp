// The files of a database: their paths, and what a folder must or must not hold of them.
#include "db/clsDB.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Preferences.h"
#include "common/base/Prompts.h"
#include "db/engine/File.h"
#include "db/TableUse.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

const QString LastDBPref = QStringLiteral("db");
constexpr int PathAccess = 75;

// The file's path as it stands in the folder when only letter case differs; empty when there is
// no such file.
QString existingFile(const QString &dir, const QString &name)
{
    if (dir.isEmpty())
        return {};
    QString path = clsDB::MakePath(clsSystem::LocalPath(dir), name);
    if (QFile::exists(path))
        return path;
    const QDir folder(clsSystem::LocalPath(dir));
    for (const QString &entry : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return folder.filePath(entry);
    }
    return {};
}

bool fileMissing(const QString &dir, const QString &name)
{
    return existingFile(dir, name).isEmpty();
}

bool hasNoMemos(const QString &dir, const schema::TableInfo &table)
{
    constexpr qint64 headerBytes = 512;
    const QString file = existingFile(dir, table.memoFile());
    return file.isEmpty() || QFileInfo(file).size() <= headerBytes;
}

Failure notCreated(const QString &path)
{
    return {PathAccess, app::title(),
            Words::tr("The file '%1' could not be created. The folder may be read-only or the "
                      "disk full.")
                .arg(path)};
}

// Any table of a database that lies in the folder; empty when there is none.
QString anyTable(const QString &dir)
{
    for (const schema::TableInfo &table : schema::tables()) {
        if (QString path = existingFile(dir, table.dataFile()); !path.isEmpty())
            return path;
    }
    return {};
}

} // namespace

QString clsDB::MakePath(const QString &dir, const QString &file)
{
    if (dir.isEmpty() || dir.endsWith(u'/') || dir.endsWith(u'\\'))
        return dir % file;
    return dir % QDir::separator() % file;
}

QString clsDB::TablePath(schema::Table which) const
{
    return MakePath(m_sDBPath, schema::table(which).dataFile());
}

QString clsDB::ReportColumnsTable() const
{
    return MakePath(app::programFolder(), QStringLiteral("nvnrepcols.dbf"));
}

QString clsDB::MailMergeTable() const
{
    return MakePath(app::programFolder(), QStringLiteral("nvnmm.db_"));
}

QString clsDB::DBMSFiles() const
{
    QStringList files;
    for (const schema::TableInfo &table : schema::tables())
        files += table.files();
    return Words::tr("%1 database consists of the following %2 files. All these files must exist "
                     "together in a directory before a database can be "
                     "opened. All these files must be BACKed up together as a unit and if needed, "
                     "RESTOREd together as a unit\n\n%3\n\n"
                     "NOTE: The attachments of your records are stored in the subdirectory '%4' "
                     "under your Norvane Data directory. Therefore, you will also need to back up "
                     "all directories and files under %4")
        .arg(app::title(), QString::number(files.size()), files.join(u'\n'), AttachDir());
}

QList<clsDBFile> clsDB::DataFilePaths() const
{
    QList<clsDBFile> all;
    for (const schema::TableInfo &table : schema::tables()) {
        all.append({MakePath(m_sDBPath, table.dataFile()), MakePath(m_sDBPath, table.indexFile()),
                    MakePath(app::programFolder(), table.templateFiles().at(1))});
    }
    return all;
}

QString clsDB::openingHelp() const
{
    return Words::tr("If you have not previously created %1 database, please choose File, New "
                     "Database... menu or if you have moved the %1 database files to another "
                     "location choose File, Open Database... menu and select the directory "
                     "that contains these files.")
        .arg(app::title());
}

bool clsDB::copyTemplate(const QString &templateName, const QString &dir, const QString &name)
{
    using namespace norvane::engine;
    const QString folder = clsSystem::LocalPath(dir);
    const QString target = MakePath(folder, name);
    const QString neighbour = anyTable(dir);
    if (!clsSystem::FileCopyFn(MakePath(app::programFolder(), templateName), target))
        return false;
    // Templates may be installed read-only; the database is not.
    // A file system without such permissions is not asked to change them.
    QFile file(target);
    if ((file.permissions() & QFile::WriteOwner) == 0 &&
        !file.setPermissions(file.permissions() | QFile::WriteOwner))
        return false;
    const auto made = systemFiles().open(target.toStdString(), OpenMode::ReadWrite);
    if (!made.ok())
        return false;
    // Whoever may write the others must be able to write this one.
    if (!neighbour.isEmpty())
        (*made)->takeRightsOf(neighbour.toStdString());
    return true;
}

bool clsDB::keepNames(const QString &dir)
{
    const QString path = MakePath(clsSystem::LocalPath(dir), schema::tables().front().dataFile());
    return norvane::engine::systemFiles().syncFolderOf(path.toStdString()).ok();
}

// The index that a table lacks comes from its rows: an empty one would hide them.
bool clsDB::buildMissingIndex(const QString &dir, const schema::TableInfo &table) const
{
    using namespace norvane::engine;
    const Handle session = d4init_v(m_files);
    code4lockAttempts(session, 10);
    expectOurTags(session);
    d4close(d4open(session, existingFile(dir, table.dataFile()).toStdString()));
    d4initUndo(session);
    return !fileMissing(dir, table.indexFile());
}

// Without this a row whose text went with the old file would show the next one that is stored. A
// table that does not open is told of later.
bool clsDB::passLostMemos(const QString &dir, const schema::TableInfo &table) const
{
    using namespace norvane::engine;
    const Handle session = d4init_v(m_files);
    expectOurTags(session);
    const Handle rows = d4open(session, existingFile(dir, table.dataFile()).toStdString());
    const bool passed = rows <= 0 || d4passLostMemos(rows) == r4success;
    d4close(rows);
    d4initUndo(session);
    return passed;
}

// The newer tables are copied from the templates when only they are missing, so a database from
// before their time is upgraded on opening.
bool clsDB::restoreTable(const QString &dir, const schema::TableInfo &table) const
{
    const QStringList names = table.files();
    const QStringList templates = table.templateFiles();
    const bool hasRows = !fileMissing(dir, table.dataFile());
    // Or empty: whoever made it anew may have died before the texts were passed over.
    const bool memosLost = hasRows && table.hasMemo && hasNoMemos(dir, table);
    bool there = true;
    bool copied = false;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const bool fromRows = hasRows && names.at(i) == table.indexFile();
        if (fromRows || !fileMissing(dir, names.at(i)))
            continue;
        there = copyTemplate(templates.at(i), dir, names.at(i)) && there;
        copied = true;
    }
    there = there && (!copied || keepNames(dir));
    there = there && (!memosLost || passLostMemos(dir, table) || !copied);
    return there && (!fileMissing(dir, table.indexFile()) || buildMissingIndex(dir, table));
}

// One name a line.
QStringList clsDB::missingFiles(const QString &dir, bool repair) const
{
    QStringList missing;
    for (const schema::TableInfo &table : schema::tables()) {
        for (const QString &name : table.files()) {
            if (!table.repairable && fileMissing(dir, name))
                missing.append(name);
        }
    }
    if (!missing.isEmpty() || !repair)
        return missing;
    for (const schema::TableInfo &table : schema::tables()) {
        if (!table.repairable || restoreTable(dir, table))
            continue;
        for (const QString &name : table.files()) {
            if (fileMissing(dir, name))
                missing.append(name);
        }
    }
    return missing;
}

bool clsDB::DirContainsValidData(const QString &dir)
{
    return guarded("clsDB_DirContainsValidData", false, [&] {
        const QStringList missing = missingFiles(dir, true);
        if (missing.isEmpty())
            return true;
        clsSystem::ShowMsg(
            Words::tr(
                "OPEN FAILED!\nThe following data files are missing from the directory '%1':\n%2")
                    .arg(dir, missing.join(u'\n')) +
                u"\n\n" + openingHelp() + u"\n\n" + DBMSFiles(),
            prompts::Kind::Critical);
        return false;
    });
}

bool clsDB::DirIsClean(const QString &dir)
{
    return guarded("clsDB_DirIsClean", false, [&] {
        QStringList present;
        for (const schema::TableInfo &table : schema::tables()) {
            for (const QString &name : table.files()) {
                if (!fileMissing(dir, name))
                    present.append(name);
            }
        }
        if (present.isEmpty())
            return true;
        clsSystem::ShowMsg(
            Words::tr(
                "NEW DATABASE CREATION FAILED!\nThe following data files already exist in the "
                "directory '%1':\n%2\nPlease select a directory that does not already contain %3 "
                "database or choose File, Open Database... menu to open an existing database.")
                .arg(dir, present.join(u'\n'), app::title()),
            prompts::Kind::Critical);
        return false;
    });
}

bool clsDB::NewDB(const QString &dir)
{
    if (!DirIsClean(dir))
        return false;
    using schema::Table;
    static constexpr Table order[] = {
        Table::Category, Table::Customer,      Table::Customer2PS,     Table::LastID,
        Table::Issues,   Table::IssuesActions, Table::IssuesTemplates, Table::User,
        Table::Report,   Table::Param};
    QStringList made;
    const bool created = guarded("clsDB_NewDB", false, [&] {
        for (const Table which : order) {
            const schema::TableInfo &table = schema::table(which);
            const QStringList names = table.files();
            for (qsizetype i = 0; i < names.size(); ++i) {
                made.append(MakePath(dir, names.at(i)));
                if (!copyTemplate(table.templateFiles().at(i), dir, names.at(i)))
                    throw notCreated(MakePath(dir, names.at(i)));
            }
        }
        if (!keepNames(dir))
            throw notCreated(dir);
        return true;
    });
    if (!created) {
        for (const QString &path : made) // or the next attempt would find them in its way
            clsSystem::DeleteFile(path);
        prompts::inform(
            Words::tr("Please try re-installing %1 to resolve this issue.").arg(app::title()));
    }
    return created;
}

QString clsDB::DBDefaultPath() const
{
#ifdef Q_OS_WIN
    return QStringLiteral("C:\\NorvaneData");
#else
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool usable = !documents.isEmpty() && clsSystem::DirExists(documents);
    return MakePath(usable ? documents : QDir::homePath(), QStringLiteral("NorvaneData"));
#endif
}

void clsDB::SetLastDBDir(const QString &dir)
{
    SetPrefStr(LastDBPref, dir);
}

QString clsDB::GetLastDBDir() const
{
    return GetPrefStr(LastDBPref);
}

void clsDB::ClearLastDBDir()
{
    SetPrefStr(LastDBPref, QString());
}
