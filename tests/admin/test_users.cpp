// The list of users and one user's form, as an administrator works with them.
#include "admin/frmUser.h"
#include "admin/frmUsers.h"
#include "common/base/clsSystem.h"
#include "common/ui/ListView.h"
#include "db/Screens.h"
#include "db/TableUse.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTest>

namespace
{

const char *const loginRules = "Login Name must be between 3 and 20 characters long.";
const char *const gone = "Record cannot be accessed or no longer exists.";

template <class T>
T *part(QWidget *window, const char *name)
{
    T *found = window->findChild<T *>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

void type(QWidget *form, const char *box, const QString &text)
{
    part<QLineEdit>(form, box)->setText(text);
}

QListWidgetItem *permission(QWidget *form, int position)
{
    return part<QListWidget>(form, "lstPermissions")->item(position - 1);
}

class Users : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    void open()
    {
        form = std::make_unique<frmUsers>();
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        list = part<ListView>(form.get(), "lvUsers");
    }
    void select(const QString &login) { ASSERT_TRUE(LvSelectItemByText(list, login)); }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < list->itemCount(); ++row)
            texts += list->itemText(row, at);
        return texts;
    }
    QString stored(qint32 id, const char *field) const
    {
        return database.stored(schema::Table::User, id, QLatin1String(field));
    }
    void erase(qint32 id) { ASSERT_TRUE(gDB.DeleteRecord(id, gDB.UserTable())); }
    static bool canLogIn(const QString &login, const QString &password)
    {
        qint32 id = 0;
        bool isAdmin = false;
        QString permissions;
        return gDB.VerifyLogin(login, password, id, isAdmin, permissions);
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<frmUsers> form;
    ListView *list = nullptr;
};

} // namespace

TEST_F(Users, AreListedSortedAndCounted)
{
    database.addUser("bob", QString(30, u'0'), false);
    database.add("_userinfo", {{"login", "ann"},
                               {"firstname", "Ann"},
                               {"lastname", "Smith"},
                               {"useractive", "T"},
                               {"usertype", "1"}});
    open();
    EXPECT_EQ(form->windowTitle(), "Edit Users");
    EXPECT_EQ(column(0), QStringList({"ann", "bob", "SYSOP"}));
    EXPECT_EQ(column(1).first(), "Smith, Ann");
    EXPECT_EQ(column(2), QStringList({"administrator", "user", "administrator"}));
    EXPECT_EQ(column(3), QStringList({"Yes", "No", "Yes"}));
    EXPECT_EQ(part<QLabel>(form.get(), "lblCount")->text(), "3 user(s)");

    const auto clickHeading = [this](int at) {
        const QHeaderView *header = list->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(at) + 8, header->height() / 2});
    };
    clickHeading(0);
    EXPECT_EQ(column(0), QStringList({"SYSOP", "bob", "ann"}));
    clickHeading(3);
    EXPECT_EQ(column(3), QStringList({"No", "Yes", "Yes"}));

    select("bob");
    database.addUser("cid", QString(30, u'0'));
    QTest::keyClick(list, Qt::Key_F5);
    EXPECT_EQ(LvGetSelectedItemText(list), "bob");
    EXPECT_EQ(list->itemCount(), 4);
    LvSelectAllItems(list, false);
    for (const char *button : {"cmdProperties", "cmdRemove", "cmdResetPassword"})
        EXPECT_FALSE(part<QPushButton>(form.get(), button)->isEnabled()) << button;
    EXPECT_TRUE(part<QPushButton>(form.get(), "cmdAdd")->isEnabled());
}

TEST_F(Users, ANewUserIsCheckedAndGetsTheLoginNameAsPassword)
{
    open();
    DialogDriver driver([this](QWidget *user) {
        EXPECT_EQ(user->windowTitle(), "User Properties");
        EXPECT_EQ(part<QLabel>(user, "lblMsg")->text(),
                  "NOTE: The initial password for the user is the same as Login Name.");
        EXPECT_TRUE(part<QWidget>(user, "lblEdit")->isHidden());
        EXPECT_TRUE(part<QCheckBox>(user, "chkActive")->isChecked());
        EXPECT_FALSE(part<QListWidget>(user, "lstPermissions")->isEnabled()); // no role yet
        for (const char *login : {"ab", "two words", "semi;colon", ""}) {
            type(user, "txtLogin", login);
            person.expectText(loginRules).kind(prompts::Kind::Critical);
            clickButton(user, "OKButton");
        }
        type(user, "txtLogin", "Sysop");
        person.expectText("Please choose either 'Administrator Role' or 'User Role'");
        clickButton(user, "OKButton");
        part<QRadioButton>(user, "UserType_1")->setChecked(true);
        EXPECT_TRUE(part<QListWidget>(user, "lstPermissions")->isEnabled());
        person.expectText("Login name must be unique within the database!");
        clickButton(user, "OKButton");
        type(user, "txtLogin", "ABCdefghijklmnopqrst"); // twenty
        type(user, "txtLname", QString(40, u'x'));
        permission(user, 1)->setCheckState(Qt::Unchecked);
        permission(user, 7)->setCheckState(Qt::Checked);
        clickButton(user, "OKButton");
    });
    QTest::keyClick(list, Qt::Key_Insert);
    ASSERT_EQ(list->itemCount(), 2);
    EXPECT_EQ(LvGetSelectedItemText(list), "ABCdefghijklmnopqrst");
    const qint32 id = LvGetSelectedItemKey(list).mid(1).toInt();
    EXPECT_EQ(stored(id, "lastname"), QString(25, u'x'));
    EXPECT_EQ(stored(id, "usertype"), "0");
    EXPECT_EQ(stored(id, "useractive"), "T");
    EXPECT_EQ(stored(id, "perm"), "0111001" + QString(23, u'0'));
    EXPECT_TRUE(canLogIn("abcdefghijklmnopqrst", "ABCDEFGHIJKLMNOPQRST"));
}

TEST_F(Users, PropertiesAreReadFirstAndEditedUnderAMark)
{
    const qint32 id = database.addUser("bob", "1010001" + QString(23, u'0'));
    auto other = database.otherStation("BACKROOM");
    other->SetEditInfo(other->UserTable(), "nvnuser.dbf", id, false);
    QString asked;
    QScopedValueRollback answer(screens().askUnderEdit);
    screens().askUnderEdit = [&asked](const QString &user, const QString &station) {
        asked = user + u'@' + station;
        return true;
    };
    open();
    select("bob");
    DialogDriver driver([&](QWidget *user) {
        EXPECT_FALSE(part<QPushButton>(user, "OKButton")->isEnabled());
        EXPECT_TRUE(part<QLabel>(user, "lblMsg")->isHidden());
        EXPECT_TRUE(part<QLineEdit>(user, "txtLogin")->isReadOnly());
        EXPECT_FALSE(part<QListWidget>(user, "lstPermissions")->isEnabled());
        EXPECT_EQ(permission(user, 1)->checkState(), Qt::Checked);
        EXPECT_EQ(permission(user, 2)->checkState(), Qt::Unchecked);
        QTest::keyClick(part<QLineEdit>(user, "txtLogin"), Qt::Key_E, Qt::ControlModifier);
        EXPECT_EQ(asked, "SYSOP@BACKROOM");
        EXPECT_TRUE(part<QListWidget>(user, "lstPermissions")->isEnabled());
        part<QRadioButton>(user, "UserType_0")->setChecked(true);
        EXPECT_FALSE(part<QListWidget>(user, "lstPermissions")->isEnabled());
        part<QCheckBox>(user, "chkActive")->setChecked(false);
        clickButton(user, "cmdApply");
        EXPECT_TRUE(user->isVisible());
        EXPECT_FALSE(part<QCheckBox>(user, "chkActive")->isEnabled());
        QTest::keyClick(user, Qt::Key_Escape); // asks nothing any more
    });
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(stored(id, "usertype"), "1");
    EXPECT_EQ(stored(id, "useractive"), "F");
    EXPECT_EQ(stored(id, "underedit"), "0");
    EXPECT_EQ(list->itemText(list->rowOfKey(u'N' + QString::number(id)), 3), "No");
    EXPECT_FALSE(canLogIn("bob", "bob"));
}

TEST_F(Users, ClosingAnEditAsksAndClearsTheMark)
{
    const qint32 id = database.addUser("bob", QString(30, u'0'));
    open();
    select("bob");
    DialogDriver driver([&](QWidget *user) {
        clickButton(user, "lblEdit");
        EXPECT_NE(stored(id, "underedit"), "0");
        type(user, "txtDept", "Sales");
        person.expect("Do you wish to discard your changes", Answer::No);
        user->close();
        EXPECT_TRUE(user->isVisible());
        person.expect("Do you wish to discard your changes", Answer::Yes);
        user->close();
    });
    clickButton(form.get(), "cmdProperties");
    EXPECT_EQ(stored(id, "underedit"), "0");
    EXPECT_EQ(stored(id, "dept"), "");
}

TEST_F(Users, TheSystemAccountStaysAndNobodyIsRemoved)
{
    const qint32 id = database.addUser("bob", QString(30, u'0'));
    open();
    select("SYSOP");
    person.expectText("SYSOP is a system account. It cannot be modified.");
    QTest::keyClick(list, Qt::Key_Return);
    const char *const kept = "To preserve history of edits by a user, deletion of users is NOT";
    person.expect(kept, Answer::Yes).buttons({Answer::Yes, Answer::No});
    person.expectText("SYSOP is a system account.");
    clickButton(form.get(), "cmdRemove");

    select("bob");
    person.expect(kept, Answer::No);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(stored(id, "login"), "bob");
    erase(id);
    for (const char *button : {"cmdProperties", "cmdResetPassword"}) {
        person.expectText(gone);
        clickButton(form.get(), button);
    }
    clickButton(form.get(), "cmdRefresh");
    EXPECT_EQ(column(0), QStringList("SYSOP"));
}

TEST_F(Users, APasswordIsResetToTheLoginName)
{
    const qint32 id = database.addUser("Bob", QString(30, u'0'));
    ASSERT_TRUE(gDB.SetPassword(id, "lantern"));
    ASSERT_TRUE(gDB.SetPassword(gDB.LoginID(), "lantern"));
    open();
    for (const char *login : {"Bob", "SYSOP"}) {
        const QString question =
            QString("Do you want to RESET the password for user '%1'?").arg(login);
        select(login);
        person.expect(question, Answer::No).buttons({Answer::Yes, Answer::No}).preset(Answer::No);
        clickButton(form.get(), "cmdResetPassword");
        EXPECT_TRUE(canLogIn(login, "lantern"));
        person.expect(question, Answer::Yes);
        person.expect(QString("The password for user '%1' has been reset to: %1").arg(login));
        clickButton(form.get(), "cmdResetPassword");
        EXPECT_TRUE(canLogIn(login, login));
    }
    EXPECT_FALSE(gDB.SetPassword(-1, "lantern")); // and no row of its own
    EXPECT_EQ(gDB.GetRecCount(gDB.UserTable(), "rowid"), 2);
}

// Another station writes the row at that moment.
TEST_F(Users, ALockedUserIsToldAndKept)
{
    const qint32 id = database.addUser("bob", QString(30, u'0'));
    auto other = database.otherStation();
    open();
    select("bob");
    TableUse rows(*other, other->UserTable());
    rows.select("rowid");
    ASSERT_TRUE(rows.seek(id));
    const RowLock held(rows.handle());
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    person.expect("Do you want to RESET the password", Answer::Yes);
    person.expect("RECORD LOCKED: Unable to update record!");
    person.expect("Unable to reset password!").kind(prompts::Kind::Warning);
    clickButton(form.get(), "cmdResetPassword");
}

TEST_F(Users, AListThatCannotBeReadSaysSo)
{
    QFile::remove(database.file("nvnuser.dbf"));
    person.expect("nvnuser.dbf");
    open();
    EXPECT_EQ(list->itemCount(), 0);
}
