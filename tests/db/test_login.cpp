// Users, logins and rights.
#include "DbTest.h"

#include "common/base/Preferences.h"
#include "db/Screens.h"

namespace
{

class Login : public DbTest
{
protected:
    ~Login() override { screens() = {}; }

    bool verify(const QString &login, const QString &password)
    {
        qint32 id = 0;
        bool admin = false;
        QString permissions;
        return gDB.VerifyLogin(login, password, id, admin, permissions);
    }

    // What the login box would show on the next opening.
    LoginRequest request()
    {
        LoginRequest seen;
        screens().promptLogin = [&](const LoginRequest &asked) {
            seen = asked;
            return LoginOutcome{};
        };
        EXPECT_FALSE(gDB.PromptLogin(db.path()));
        return seen;
    }
};

} // namespace

TEST_F(Login, NamesAndPasswordsIgnoreCaseAndAreWhole)
{
    EXPECT_TRUE(verify(u"sysop"_s, u"SYSOP"_s));
    EXPECT_TRUE(verify(u"SysOp"_s, u"sysop"_s));
    EXPECT_FALSE(verify(u"sys"_s, u"sysop"_s)) << "the beginning of a login is not that login";
    EXPECT_FALSE(verify(u"sysop"_s, u"sys"_s));
    EXPECT_FALSE(verify(u""_s, u"sysop"_s));
    EXPECT_FALSE(verify(u"sysop"_s, u""_s));
    db.addUser(u"idle"_s, {}, false);
    EXPECT_FALSE(verify(u"idle"_s, u"idle"_s));
    EXPECT_GT(gDB.GetLoginID(u"IDLE"_s), 0);
    EXPECT_EQ(-1, gDB.GetLoginID(u"nobody"_s));
}

TEST_F(Login, TheBoxIsFilledWhenThereIsOnlyOneChoice)
{
    EXPECT_EQ(u"sysop"_s, request().login);
    EXPECT_EQ(u"sysop"_s, request().password);

    db.addUser(u"idle"_s, {}, false);
    EXPECT_EQ(u"sysop"_s, request().login) << "inactive users do not count";
    db.addUser(u"anna"_s, {});
    EXPECT_EQ(QString(), request().login);
    EXPECT_EQ(QString(), request().password);

    SetPrefStr(u"LastLogin"_s, u"ANNA"_s);
    EXPECT_EQ(u"anna"_s, request().login);
    EXPECT_EQ(u"anna"_s, request().password) << "the first password only wants OK";
}

TEST_F(Login, WhoLoggedInIsRemembered)
{
    db.addUser(u"anna"_s, u"0100001"_s);
    screens().promptLogin = [](const LoginRequest &) {
        LoginOutcome outcome;
        outcome.ok = true;
        outcome.login = u"anna"_s;
        outcome.password = u"anna"_s;
        gDB.VerifyLogin(outcome.login, outcome.password, outcome.id, outcome.isAdmin,
                        outcome.permissions);
        return outcome;
    };
    ASSERT_TRUE(gDB.OpenDB(db.path()));
    EXPECT_EQ(u"anna"_s, gDB.LoginName());
    EXPECT_EQ(u"anna"_s, GetPrefStr(u"LastLogin"_s));
    EXPECT_FALSE(gDB.IsAdminUser());
    EXPECT_EQ(u"anna"_s, gDB.GetUsername(gDB.LoginID()));
}

TEST_F(Login, RightsAreTheirPlacesInTheString)
{
    db.addUser(u"anna"_s, u"0100001"_s);
    db.loginAs(u"anna"_s, u"anna"_s);
    EXPECT_TRUE(gDB.Perm_PS());
    EXPECT_TRUE(gDB.Perm_DBAdmin());
    EXPECT_FALSE(gDB.Perm_ReportsNoMsg());
    person.expectText(u"grant this permission to your login 'anna'."_s);
    EXPECT_FALSE(gDB.Perm_Customers());
    person.expectText(u"re-open Norvane."_s);
    EXPECT_FALSE(gDB.CheckPerm(25, false)); // the stored string is shorter
    EXPECT_FALSE(gDB.CheckPerm(0, true));
    person.expectText(u"Only the users who have 'admin' role"_s);
    EXPECT_FALSE(gDB.CheckAdmin());
}

TEST_F(Login, AnAdministratorMayEverythingWhateverTheRowSays)
{
    EXPECT_TRUE(gDB.Perm_DBAdmin());
    EXPECT_TRUE(gDB.CheckPerm(30, false));
    EXPECT_TRUE(gDB.CheckAdmin());
    EXPECT_EQ(u"administrator"_s, clsDB::GetUserTypeStr(u"1"_s));
    EXPECT_EQ(u"user"_s, clsDB::GetUserTypeStr({}));
    EXPECT_EQ(u"111100000000000000000000000000"_s, clsDB::GetDefaultPermissionsStr());
}

TEST_F(Login, AnUnattendedLoginChangesNoPreferences)
{
    SetPrefStr(u"LastLogin"_s, u"anna"_s);
    clsDB other;
    EXPECT_FALSE(other.OpenUnattended(db.path(), u"SYSOP"_s, u"wrong"_s));
    EXPECT_FALSE(other.IsOpen());
    EXPECT_TRUE(other.OpenUnattended(db.path(), u"SYSOP"_s, u"sysop"_s));
    EXPECT_TRUE(other.IsAdminUser());
    EXPECT_EQ(u"anna"_s, GetPrefStr(u"LastLogin"_s));
    EXPECT_EQ(QString(), GetPrefStr(u"db"_s));
}
