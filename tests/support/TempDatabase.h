// A new database in a folder of its own, made from the templates, with gDB open in it. Folder and
// gDB's session go with the object.
#pragma once

#include "db/clsDB.h"

#include <QTemporaryDir>
#include <QVariant>

#include <initializer_list>
#include <memory>
#include <utility>

class TempDatabase
{
public:
    using Fields = std::initializer_list<std::pair<const char *, QVariant>>;
    enum class Start { LoggedIn, Closed };

    // LoggedIn: as the administrator, login and password "SYSOP".
    explicit TempDatabase(Start start = Start::LoggedIn);
    ~TempDatabase();
    TempDatabase(const TempDatabase &) = delete;
    TempDatabase &operator=(const TempDatabase &) = delete;

    QString path() const { return m_dir.path(); }
    QString file(const QString &name) const { return m_dir.filePath(name); }

    // gDB as another user; fails the test when the login is refused.
    void loginAs(const QString &login, const QString &password);
    // The same database as a second workstation has it open.
    std::unique_ptr<clsDB> otherStation(const QString &computer = QStringLiteral("STATION2"),
                                        const QString &login = QStringLiteral("SYSOP"),
                                        const QString &password = QStringLiteral("sysop")) const;

    // Saves a new record of the type through gDB, fields not given being empty; its rowid.
    qint32 add(const QString &recType, Fields fields);
    qint32 addCustomer(Fields fields) { return add(QStringLiteral("_customer"), fields); }
    qint32 addIssue(Fields fields) { return add(QStringLiteral("_issue"), fields); }
    qint32 addSubscription(Fields fields) { return add(QStringLiteral("_ps"), fields); }
    // A user whose first password is the login name.
    qint32 addUser(const QString &login, const QString &permissions, bool active = true);
    qint32 addListItem(qint32 type, const QString &text);

    // What a row holds now, read past gDB: trimmed, memos whole; null when there is no such row.
    QString stored(schema::Table table, qint32 rowid, const QString &field) const;

private:
    QTemporaryDir m_dir;
};

// The table that a record type is stored in.
schema::Table tableOfRecordType(const QString &recType);
