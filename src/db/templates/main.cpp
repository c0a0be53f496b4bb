// norvane_mktemplates OUTDIR SEEDDIR: writes the template files of a new database, the report
// column catalogue and the mail-merge template into OUTDIR, from the schema and the seed files.
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/clsDB.h"
#include "db/Schema.h"
#include "db/templates/SeedFile.h"
#include "db/templates/TemplateSet.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

namespace
{

// The one user of a new database; login and first password are the same.
SeedFile administrator()
{
    const QString login = QStringLiteral("SYSOP");
    const QString password = clsSystem::StringToHexStr(login.toLower());
    SeedFile seed;
    seed.fields = QStringList{QStringLiteral("rowid"),    QStringLiteral("login"),
                              QStringLiteral("password"), QStringLiteral("useractive"),
                              QStringLiteral("usertype"), QStringLiteral("perm")};
    seed.rows.push_back(
        {QStringLiteral("administrator"),
         {QStringLiteral("1"), login, password, QStringLiteral("T"),
          QString(QLatin1Char(clsDB::AdminCode)), clsDB::GetDefaultPermissionsStr()}});
    return seed;
}

SeedFile seedOf(schema::Table table, const QDir &seedDir)
{
    switch (table) {
    case schema::Table::Category:
        return SeedFile::read(seedDir.filePath(QStringLiteral("lists.csv")));
    case schema::Table::Report:
        return SeedFile::read(seedDir.filePath(QStringLiteral("reports.csv")));
    case schema::Table::User:
        return administrator();
    default:
        return {};
    }
}

void makeAll(const QString &outDir, const QDir &seedDir)
{
    QDir().mkpath(outDir);
    // Beside the result, so that files move there without being copied.
    const QTemporaryDir work(outDir + QStringLiteral("/.making-XXXXXX"));
    for (const schema::TableInfo &table : schema::tables()) {
        TemplateSet set(work.path(), table.baseName, table.def);
        set.fill(seedOf(table.table, seedDir));
        set.moveTo(outDir, table.templateFiles());
    }
    TemplateSet columns(work.path(), QStringLiteral("nvnrepcols"), schema::reportColumnsDef());
    columns.fill(SeedFile::read(seedDir.filePath(QStringLiteral("columns.csv"))));
    columns.moveTo(outDir, {QStringLiteral("nvnrepcols.dbf"), QStringLiteral("nvnrepcols.cdx")});

    const TemplateSet mailMerge(work.path(), QStringLiteral("nvnmm"), schema::mailMergeDef());
    mailMerge.moveTo(outDir, {QStringLiteral("nvnmm.db_")});
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: norvane_mktemplates OUTDIR SEEDDIR\n", stderr);
        return 2;
    }
    try {
        makeAll(arguments.at(1), QDir(arguments.at(2)));
    } catch (const Failure &failure) {
        const QString text = failure.source() + u": " + failure.description();
        std::fprintf(stderr, "norvane_mktemplates: %s\n", qUtf8Printable(text));
        return 1;
    }
    return 0;
}
