// The login box.
#include "shell/frmLogin.h"
#include "support/DialogDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{

class Login : public ::testing::Test
{
protected:
    void open(const QString &login, const QString &password)
    {
        box.Init("/data/customers", login, password);
        box.show();
        box.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    }
    QLineEdit *edit(const char *name) { return box.findChild<QLineEdit *>(QLatin1String(name)); }
    void pressOk() { clickButton(&box, "OKButton"); }

    ScriptedPrompts person;
    TempDatabase database;
    frmLogin box;
};

} // namespace

TEST_F(Login, FirstEmptyBoxHasTheFocus)
{
    open("", "");
    EXPECT_TRUE(edit("txtLogin")->hasFocus());
    open("ann", "");
    EXPECT_TRUE(edit("txtPassword")->hasFocus());
    open("ann", "ann");
    EXPECT_TRUE(box.findChild<QPushButton *>("OKButton")->hasFocus());
    EXPECT_EQ(edit("txtDir")->text(), "/data/customers");
    EXPECT_TRUE(edit("txtDir")->isReadOnly());
    EXPECT_EQ(edit("txtPassword")->echoMode(), QLineEdit::Password);
    EXPECT_EQ(box.findChild<QLabel *>("lblMsg")->text(),
              "Unless changed, BOTH the initial Login Name and Password for a new database is "
              "SYSOP");
}

TEST_F(Login, EmptyBoxesAreToldInTurn)
{
    open("  ", "x");
    person.expect("Login Name must be entered!").kind(prompts::Kind::Warning);
    pressOk();
    EXPECT_TRUE(edit("txtLogin")->hasFocus());
    edit("txtLogin")->setText("ann");
    edit("txtPassword")->setText("   ");
    person.expect("Password must be entered!").kind(prompts::Kind::Warning);
    pressOk();
    EXPECT_TRUE(edit("txtPassword")->hasFocus());
    EXPECT_EQ(edit("txtPassword")->selectedText(), "   ");
    EXPECT_TRUE(box.isVisible());
}

TEST_F(Login, RefusedLoginStaysAndMaySucceedLater)
{
    database.addUser("gone", clsDB::GetDefaultPermissionsStr(), false);
    open("sysop", "wrong");
    for (const auto &[login, password] : {std::pair{"sysop", "wrong"}, {"gone", "gone"}}) {
        edit("txtLogin")->setText(login);
        edit("txtPassword")->setText(password);
        person.expectText("Invalid Login Name or Password! Please try again.\n\nIf you believe");
        pressOk();
        EXPECT_TRUE(edit("txtPassword")->hasFocus());
        EXPECT_EQ(edit("txtPassword")->selectedText(), password);
        EXPECT_FALSE(box.outcome().ok);
    }
    edit("txtLogin")->setText(" SysOp ");
    edit("txtPassword")->setText("SYSOP ");
    QTest::keyClick(edit("txtPassword"), Qt::Key_Return);
    EXPECT_EQ(box.result(), QDialog::Accepted);
    EXPECT_TRUE(box.outcome().ok);
    EXPECT_EQ(box.outcome().login, "SysOp");
    EXPECT_EQ(box.outcome().password, "SYSOP");
    EXPECT_TRUE(box.outcome().isAdmin);
    EXPECT_GE(box.outcome().id, 1);
}

TEST_F(Login, CancelIsNoLogin)
{
    open("sysop", "sysop");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible());
    EXPECT_FALSE(box.outcome().ok);
}
