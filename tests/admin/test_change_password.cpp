// The form that asks for the password in force and for a new one.
#include "admin/frmChangePWD.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{

class ChangePassword : public ::testing::Test
{
protected:
    ChangePassword() { form.show(); }
    QLineEdit *box(const char *name) { return form.findChild<QLineEdit *>(name); }
    // Whether OK took what was typed.
    bool ok(const QString &first, const QString &second = {})
    {
        form.setResult(QDialog::Rejected);
        form.show();
        box("txtPassword")->setText(first);
        box("txtPasswordRetype")->setText(second);
        QTest::keyClick(box("txtPassword"), Qt::Key_Return);
        return form.result() == QDialog::Accepted;
    }

    ScriptedPrompts person;
    frmChangePWD form;
};

} // namespace

TEST_F(ChangePassword, TheOneInForceIsAskedForInOneBox)
{
    form.EnterMode("*CURRENT* Password for 'ann'", "Secret");
    EXPECT_TRUE(box("txtPasswordRetype")->isHidden());
    person.expect("Incorrect Password, try again!").title("Password");
    EXPECT_FALSE(ok("secre"));
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(box("txtPassword")->selectedText(), "secre");
    EXPECT_TRUE(ok("SECRET"));
    person.expect("You will first enter your current password and then your new password.");
    form.findChild<QPushButton *>("cmdHelp")->click();
}

TEST_F(ChangePassword, ANewOneIsTypedTwiceAndChecked)
{
    form.NewMode("*NEW* Password for 'ann'");
    EXPECT_EQ(box("txtPassword")->text(), QString());
    EXPECT_TRUE(box("txtPasswordRetype")->isVisible());
    const struct {
        QString first, second, refusal;
    } cases[] = {
        {"lamp1", "Lamp1", "do not match"},
        {"", "", "at least 3 characters long"},
        {"ab", "ab", "at least 3 characters long"},
        {QString(21, u'x'), QString(21, u'x'), "at most 20 characters long."},
        {"lamp post", "lamp post", "Password cannot contain spaces!"},
        {" lamp", " lamp", "Password cannot contain spaces!"},
        {u"lamp\u00A0"_qs, u"lamp\u00A0"_qs, "Password cannot contain spaces!"},
        {u"漢字漢字"_qs, u"漢字漢字"_qs, "cannot be stored"},
    };
    for (const auto &typed : cases) {
        person.expect(typed.refusal);
        EXPECT_FALSE(ok(typed.first, typed.second)) << qPrintable(typed.first);
        EXPECT_TRUE(form.isVisible());
    }
    for (const QString &fine : {QString("abc"), QString(20, u'x'), u"Größe"_qs}) {
        EXPECT_TRUE(ok(fine, fine)) << qPrintable(fine);
        EXPECT_EQ(form.password(), fine);
    }
    person.expect("Enter your new password twice.");
    form.show();
    form.findChild<QPushButton *>("cmdHelp")->click();
}
