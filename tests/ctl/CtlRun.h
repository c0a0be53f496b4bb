// Runs norvanectl the way its main() does, with streams and password of the test's own, and gives
// back all it said.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

struct CtlResult {
    int code = -1;
    QString out;
    QString err;

    QStringList lines() const; // of `out`
};

CtlResult ctlRun(const QStringList &words, const QString &password = QStringLiteral("SYSOP"));

// The rows of a table through `dump`; fails the test when one is no JSON object.
QList<QJsonObject> dumpedRows(const QString &dir, const QString &table);
// What `check` says, empty when the database is sound.
QString problemsOf(const QString &dir);

// A folder with a database that `new` made, and room for files beside it.
class CtlFolder
{
public:
    CtlFolder();
    QString path() const { return m_root.filePath(QStringLiteral("data")); }
    // Writes a file beside the data folder and gives its path.
    QString file(const QString &name, const QByteArray &contents) const;
    QString at(const QString &name) const; // a file of the data folder
    // Adds a user whose password is the login name, with these rights ("1" and "0").
    void addUser(const QString &login, const QString &permissions) const;

private:
    QTemporaryDir m_root;
};

QByteArray readAll(const QString &path);
void writeAll(const QString &path, const QByteArray &contents);
