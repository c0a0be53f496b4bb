#include "ctl/CtlRun.h"

#include "ctl/Program.h"
#include "db/clsDB.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>

QStringList CtlResult::lines() const
{
    return out.split(u'\n', Qt::SkipEmptyParts);
}

CtlResult ctlRun(const QStringList &words, const QString &password)
{
    CtlResult result;
    QTextStream out(&result.out);
    QTextStream err(&result.err);
    ctl::Console console{out, err, [&] { return password; }};
    result.code = ctl::runProgram(words, console);
    return result;
}

QList<QJsonObject> dumpedRows(const QString &dir, const QString &table)
{
    const CtlResult dump = ctlRun({QStringLiteral("dump"), dir, table});
    EXPECT_EQ(dump.code, 0);
    EXPECT_EQ(dump.err, QString());
    QList<QJsonObject> rows;
    const QStringList lines = dump.lines();
    for (const QString &line : lines) {
        QJsonParseError error;
        const QJsonDocument row = QJsonDocument::fromJson(line.toUtf8(), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(line);
        rows << row.object();
    }
    return rows;
}

QString problemsOf(const QString &dir)
{
    const CtlResult check = ctlRun({QStringLiteral("check"), dir});
    return check.code == 0 ? QString() : QString(check.out + check.err);
}

CtlFolder::CtlFolder()
{
    const CtlResult made = ctlRun({QStringLiteral("new"), path()});
    EXPECT_EQ(made.code, 0) << qPrintable(made.err);
}

QString CtlFolder::file(const QString &name, const QByteArray &contents) const
{
    QString file = m_root.filePath(name);
    writeAll(file, contents);
    return file;
}

QString CtlFolder::at(const QString &name) const
{
    return clsDB::MakePath(path(), name);
}

void CtlFolder::addUser(const QString &login, const QString &permissions) const
{
    clsDB db;
    const QString sysop = QStringLiteral("SYSOP");
    ASSERT_TRUE(db.OpenUnattended(path(), sysop, sysop));
    RecColl user(db.UserTable(), QStringLiteral("nvnuser.dbf"), -1, QStringLiteral("_userinfo"));
    user.add(QStringLiteral("login"), login);
    user.add(QStringLiteral("firstname"), QStringLiteral("Ann"));
    user.add(QStringLiteral("lastname"), login);
    user.add(QStringLiteral("dept"), QString());
    user.add(QStringLiteral("useractive"), QStringLiteral("T"));
    user.add(QStringLiteral("usertype"), QStringLiteral("0"));
    user.add(QStringLiteral("perm"), permissions);
    user.add(QStringLiteral("note"), QString());
    ASSERT_TRUE(db.SaveRecord(user));
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

void writeAll(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(contents), contents.size());
}
