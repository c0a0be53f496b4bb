#include "support/TempDatabase.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "db/FieldText.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace norvane::engine;
using schema::Table;

TempDatabase::TempDatabase(Start start)
{
    EXPECT_TRUE(m_dir.isValid());
    // As clsDB::NewDB does it, but without waiting for the disk.
    for (const schema::TableInfo &table : schema::tables()) {
        const QStringList templates = table.templateFiles();
        for (qsizetype i = 0; i < templates.size(); ++i) {
            const QString source = clsDB::MakePath(app::programFolder(), templates.at(i));
            EXPECT_TRUE(QFile::copy(source, file(table.files().at(i)))) << qPrintable(source);
        }
    }
    if (start == Start::LoggedIn)
        loginAs(QStringLiteral("SYSOP"), QStringLiteral("sysop"));
}

TempDatabase::~TempDatabase()
{
    gDB.CloseDB();
}

void TempDatabase::loginAs(const QString &login, const QString &password)
{
    EXPECT_TRUE(gDB.OpenUnattended(path(), login, password)) << qPrintable(login);
}

std::unique_ptr<clsDB> TempDatabase::otherStation(const QString &computer, const QString &login,
                                                  const QString &password) const
{
    const auto before = std::exchange(host().computerName, [computer] { return computer; });
    auto db = std::make_unique<clsDB>();
    EXPECT_TRUE(db->OpenUnattended(path(), login, password)) << qPrintable(login);
    host().computerName = before;
    return db;
}

schema::Table tableOfRecordType(const QString &recType)
{
    static const std::pair<QLatin1String, Table> types[] = {
        {QLatin1String("_userinfo"), Table::User},
        {QLatin1String("_customer"), Table::Customer},
        {QLatin1String("_newcustomer"), Table::Customer},
        {QLatin1String("_ps"), Table::Customer2PS},
        {QLatin1String("_issue"), Table::Issues},
        {QLatin1String("_issuetemplate"), Table::IssuesTemplates},
        {QLatin1String("_issueaction"), Table::IssuesActions},
        {QLatin1String("_rptdef"), Table::Report}};
    for (const auto &[code, table] : types) {
        if (recType == code)
            return table;
    }
    ADD_FAILURE() << "no table for " << qPrintable(recType);
    return Table::Customer;
}

qint32 TempDatabase::add(const QString &recType, Fields fields)
{
    const schema::TableInfo &table = schema::table(tableOfRecordType(recType));
    RecColl record(gDB.TablePath(table.table), table.dataFile(), -1, recType);
    for (const schema::RecordField &field : schema::recordType(recType)->writes)
        record.add(QLatin1String(field.name), QString());
    for (const auto &[name, value] : fields)
        EXPECT_TRUE(record.setExisting(QLatin1String(name), value)) << name;
    EXPECT_TRUE(gDB.SaveRecord(record));
    return record.number(QStringLiteral("_rowid"));
}

qint32 TempDatabase::addUser(const QString &login, const QString &permissions, bool active)
{
    return add(QStringLiteral("_userinfo"), {{"login", login},
                                             {"useractive", clsSystem::Bool2TorF(active)},
                                             {"usertype", QString(QLatin1Char(clsDB::UserCode))},
                                             {"perm", permissions}});
}

qint32 TempDatabase::addListItem(qint32 type, const QString &text)
{
    const clsDB::Handle table = gDB.OpenTable(gDB.CategoryTable());
    const qint32 rowid = gDB.AddCategory(text, type, table);
    gDB.CloseTable(table);
    EXPECT_GT(rowid, 0);
    return rowid;
}

QString TempDatabase::stored(Table which, qint32 rowid, const QString &field) const
{
    clsDB reader;
    EXPECT_TRUE(reader.OpenForReading(path()));
    const clsDB::Handle table = reader.OpenTable(reader.TablePath(which));
    const clsDB::Handle column = d4field(table, field.toStdString());
    EXPECT_GT(column, 0) << qPrintable(field);
    d4tagSelect(table, d4tag(table, "rowid"));
    QString value;
    if (d4seekDouble(table, rowid) == 0) {
        value = f4type(column) == 'M' ? MemoText(column) : clsSystem::Trim(FieldText(column));
        if (value.isNull())
            value = QStringLiteral("");
    }
    reader.CloseTable(table);
    return value;
}
