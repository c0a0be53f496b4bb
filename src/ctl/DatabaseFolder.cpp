#include "ctl/DatabaseFolder.h"

#include "db/clsDB.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace ctl
{

namespace
{

constexpr char16_t DefaultUser[] = u"SYSOP";

bool refuse(const QString &text, Console &console)
{
    console.err << text << '\n';
    return false;
}

} // namespace

QString shownPath(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

bool folderIsThere(const QString &dir, Console &console)
{
    const QFileInfo info(dir);
    if (!info.exists())
        return refuse(QStringLiteral("The folder '%1' does not exist.").arg(shownPath(dir)),
                      console);
    if (!info.isDir())
        return refuse(QStringLiteral("'%1' is a file, not a folder.").arg(shownPath(dir)), console);
    return true;
}

bool fileIsReadable(const QString &path, Console &console)
{
    const QFileInfo info(path);
    if (!info.exists())
        return refuse(QStringLiteral("The file '%1' does not exist.").arg(shownPath(path)),
                      console);
    if (info.isDir())
        return refuse(QStringLiteral("'%1' is a folder, not a file.").arg(shownPath(path)),
                      console);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(QStringLiteral("The file '%1' cannot be read: %2.")
                          .arg(shownPath(path), file.errorString()),
                      console);
    return true;
}

bool prepareNewFolder(const QString &dir, Console &console)
{
    const QFileInfo info(dir);
    if (!info.exists() && !QDir().mkpath(dir))
        return refuse(QStringLiteral("The folder '%1' cannot be created.").arg(shownPath(dir)),
                      console);
    if (!folderIsThere(dir, console))
        return false;
    if (!QFileInfo(dir).isWritable())
        return refuse(QStringLiteral("The folder '%1' is read-only. Choose one that you may write "
                                     "to, or change its permissions.")
                          .arg(shownPath(dir)),
                      console);
    return true;
}

Option userOption()
{
    return {QStringLiteral("--user"), QStringLiteral("NAME"),
            QStringLiteral("log in as NAME; SYSOP unless given")};
}

namespace
{

// Asked once; false, after a message, when none was given.
bool askPassword(const QString &user, Console &console, QString &password)
{
    password = console.password();
    if (password.isEmpty())
        return refuse(QStringLiteral("No password was given for '%1'. Set the environment variable "
                                     "NORVANE_PASSWORD or write it on standard input.")
                          .arg(user),
                      console);
    console.err.flush();
    return true;
}

QString userOf(const Arguments &arguments)
{
    return arguments.values.value(userOption().name, QString::fromUtf16(DefaultUser));
}

} // namespace

bool logIn(clsDB &db, const QString &dir, const Arguments &arguments, Console &console)
{
    if (!folderIsThere(dir, console) || !db.DirContainsValidData(dir))
        return false;
    const QString user = userOf(arguments);
    QString password;
    if (!askPassword(user, console, password))
        return false;
    if (db.OpenUnattended(dir, user, password))
        return !db.IsReadOnly(); // which was told
    return refuse(QStringLiteral("The database '%1' was not opened for '%2'. Unless another reason "
                                 "stands above, the login name or password is wrong, or the "
                                 "login is not active.")
                      .arg(shownPath(dir), user),
                  console);
}

Option withoutLoginOption()
{
    return {QStringLiteral("--without-login"), QString(),
            QStringLiteral("only for a folder whose table of users cannot be read")};
}

bool logInForMaintenance(clsDB &db, const QString &dir, const Arguments &arguments,
                         Console &console)
{
    if (!db.OpenForMaintenance(dir))
        return false;
    const bool without = arguments.has(withoutLoginOption().name);
    if (!db.UsersReadable())
        return without || refuse(QStringLiteral("The table of users cannot be read, so nobody can "
                                                "log in. If you may change the files of the "
                                                "folder, use --without-login."),
                                 console);
    if (without)
        return refuse(QStringLiteral("The table of users can be read. Log in with --user NAME "
                                     "instead of --without-login."),
                      console);
    const QString user = userOf(arguments);
    QString password;
    if (!askPassword(user, console, password))
        return false;
    if (db.LogInForMaintenance(user, password))
        return db.Perm_DBAdmin();
    return refuse(QStringLiteral("'%1' is not logged in: the login name or password is wrong, or "
                                 "the login is not active.")
                      .arg(user),
                  console);
}

} // namespace ctl
