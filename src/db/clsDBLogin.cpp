// Who works with the database and what that user may do. Rights are read once, at login.
#include "db/clsDB.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Preferences.h"
#include "db/Screens.h"
#include "db/TableUse.h"

#include <QCoreApplication>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsDB)
};

constexpr int PermissionCount = 30;
constexpr int DefaultPermissions = 4; // customers, products and services, issues, reports
const QString ActiveUserTag = QStringLiteral("ACTIVEUSER");
const QString LoginField = QStringLiteral("login");
const QString LastLogin = QStringLiteral("LastLogin");

QString permissions(int granted)
{
    return QString(granted, u'1').leftJustified(PermissionCount, u'0');
}

} // namespace

bool clsDB::VerifyLogin(const QString &login, const QString &password, qint32 &id, bool &isAdmin,
                        QString &permissionText)
{
    return guarded("clsDB_VerifyLogin", false, [&] {
        TableUse users(*this, UserTable());
        if (!users)
            return false;
        users.select(ActiveUserTag);
        if (login.isEmpty() || !users.seekText(login, LoginField))
            return false;
        const QString stored =
            clsSystem::HexStrToString(users.text(QStringLiteral("password"))).toLower();
        if (stored != password.toLower())
            return false;
        id = users.number(QStringLiteral("rowid"));
        isAdmin = users.text(QStringLiteral("usertype")).startsWith(QLatin1Char(AdminCode));
        permissionText =
            isAdmin ? permissions(PermissionCount) : users.text(QStringLiteral("perm"));
        return true;
    });
}

bool clsDB::PromptLogin(const QString &dir)
{
    return guarded("clsDB_PromptLogin", false, [&] {
        const qint32 activeUsers = GetRecCount(UserTable(), ActiveUserTag);
        if (activeUsers < 0 || !screens().promptLogin)
            return false;
        LoginRequest request{dir, GetPrefStr(LastLogin).toLower(), {}};
        if (request.login.isEmpty() && activeUsers < 2)
            request.login = DefaultLogin();
        // The first password, or one that was reset, is the login name: OK is then enough.
        if (GetUserPassword(request.login).toLower() == request.login)
            request.password = request.login;

        const LoginOutcome outcome = screens().promptLogin(request);
        if (!outcome.ok)
            return false;
        m_sLoginName = outcome.login;
        m_nLoginID = outcome.id;
        m_bIsAdmin = outcome.isAdmin;
        m_sPermissions = outcome.permissions;
        m_sPassword = outcome.password;
        SetPrefStr(LastLogin, outcome.login);
        return true;
    });
}

bool clsDB::acceptLogin(const QString &login, const QString &password)
{
    if (!VerifyLogin(login, password, m_nLoginID, m_bIsAdmin, m_sPermissions))
        return false;
    m_sLoginName = login;
    m_sPassword = password;
    return true;
}

void clsDB::clearLogin()
{
    m_sLoginName.clear();
    m_sPassword.clear();
    m_sPermissions.clear();
    m_nLoginID = 0;
    m_bIsAdmin = false;
}

QString clsDB::GetUserPassword(const QString &login)
{
    return guarded("clsDB_GetUserPassword", QString(), [&] {
        const qint32 id = GetLoginID(login);
        RecColl user(UserTable(), schema::table(schema::Table::User).dataFile(), id,
                     QStringLiteral("_userinfo"));
        if (id < 1 || !ReadRecord(user, true))
            return QString();
        return clsSystem::HexStrToString(user.text(QStringLiteral("password")));
    });
}

bool clsDB::SetPassword(qint32 id, const QString &password)
{
    return guarded("clsDB_SetPassword", false, [&] {
        RecColl user(UserTable(), schema::table(schema::Table::User).dataFile(), id,
                     QStringLiteral("_setpwd"));
        user.add(QStringLiteral("password"), password);
        return id > 0 && SaveRecord(user);
    });
}

qint32 clsDB::GetLoginID(const QString &login)
{
    return guarded("clsDB_GetLoginID", -1, [&] {
        if (login.isEmpty())
            return -1;
        TableUse users(*this, UserTable());
        if (!users)
            return -1;
        users.select(LoginField);
        return users.seekText(login, LoginField) ? users.number(QStringLiteral("rowid")) : -1;
    });
}

QString clsDB::GetUsername(qint32 id)
{
    return guarded("clsDB_GetUsername", QString(), [&] {
        RecColl user(UserTable(), schema::table(schema::Table::User).dataFile(), id,
                     QStringLiteral("_userinfo"));
        return ReadRecord(user, true) ? user.text(LoginField) : QString();
    });
}

QString clsDB::GetUsername2(qint32 id, Handle table)
{
    return guarded("clsDB_GetUsername2", QString(), [&] {
        TableUse users(*this, UserTable(), table);
        if (!users)
            return QString();
        users.select(QStringLiteral("rowid"));
        if (!users.seek(id))
            return QString();
        return clsSystem::MakeFullName(users.text(QStringLiteral("firstname")),
                                       users.text(QStringLiteral("lastname")));
    });
}

QString clsDB::GetUserTypeStr(const QString &code)
{
    return code.startsWith(QLatin1Char(AdminCode)) ? Words::tr("administrator") : Words::tr("user");
}

QString clsDB::GetDefaultPermissionsStr()
{
    return permissions(DefaultPermissions);
}

bool clsDB::CheckAdmin()
{
    if (m_bIsAdmin)
        return true;
    clsSystem::ShowMsg(
        Words::tr("Only the users who have 'admin' role can perform this action!\n\n"
                  "If you believe you should be able to perform this function, please ask "
                  "your administrator to change your role to 'admin' (See Database Admin, "
                  "User Management icon)."));
    return false;
}

bool clsDB::CheckPerm(int position, bool NoMsg)
{
    const bool listed = position > 0 && position <= m_sPermissions.size();
    if (m_bIsAdmin || (listed && m_sPermissions.at(position - 1) == u'1'))
        return true;
    if (!NoMsg)
        NoPermissionMsg();
    return false;
}

void clsDB::NoPermissionMsg()
{
    clsSystem::ShowMsg(
        Words::tr("Sorry, you are not permitted to perform this action. Please ask your "
                  "system administrator to grant this permission to your login '%1'. After "
                  "your system administrator has granted you the permission, you will need "
                  "to close down and then re-open %2.")
            .arg(m_sLoginName, app::title()));
}
