// What the database core asks of the screens above it. The shell fills this in at start-up;
// without it (norvanectl) the defaults hold: no login box, no windows to close.
#pragma once

#include <QString>

#include <functional>

struct LoginRequest {
    QString folder;
    QString login;    // prefilled
    QString password; // prefilled
};

struct LoginOutcome {
    bool ok = false;
    QString login;
    QString password; // as typed
    qint32 id = -1;
    bool isAdmin = false;
    QString permissions;
};

struct Screens {
    // frmLogin, modal.
    std::function<LoginOutcome(const LoginRequest &)> promptLogin;
    // frmUnderEditMsg, modal; true: edit anyway.
    std::function<bool(const QString &user, const QString &station)> askUnderEdit;
    // Closes every window but the main one, each with its own question; false when one stays.
    std::function<bool()> unloadAll;
    // A database was opened (menu captions follow its custom labels).
    std::function<void()> databaseOpened;
    // The open database takes no changes any more (clsDB::IsReadOnly).
    std::function<void()> databaseReadOnly;
};

Screens &screens();
