// Messages for the mail program: what a stand-in on the search path receives.
#include "common/base/clsSystem.h"
#include "common/base/Preferences.h"
#include "common/ui/frmOptions.h"
#include "common/ui/Mail.h"
#include "common/ui/MailDraft.h"

#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/ProgramFolder.h"
#include "support/ScriptedPrompts.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QTest>
#include <QUrl>
#include <QUrlQuery>

namespace
{

class Mail : public ::testing::Test
{
protected:
    Mail()
    {
        host().handOver = machineHost().handOver;
        for (const char *name : {"xdg-email", "xdg-open"})
            programs.add(name, "printf '%s' \"$#:$1\" >\"${0%/*}/" + QByteArray(name) + ".seen\"");
    }
    // The one argument that the program was started with.
    QByteArray received(const QString &program) const
    {
        QFile file(programs.filePath(program + ".seen"));
        const QByteArray seen = file.open(QIODevice::ReadOnly) ? file.readAll() : "not started";
        EXPECT_TRUE(seen.startsWith("1:")) << seen.constData();
        return seen.mid(2);
    }
    QByteArray receivedDraft() const
    {
        QFile draft(QString::fromLocal8Bit(received("xdg-open")));
        EXPECT_TRUE(draft.fileName().endsWith(".eml") && draft.open(QIODevice::ReadOnly));
        EXPECT_FALSE(draft.permissions().testAnyFlags(QFile::ReadGroup | QFile::ReadOther));
        const QByteArray bytes = draft.readAll();
        draft.remove();
        return bytes;
    }
    static QString bodyOf(const QByteArray &draft)
    {
        return QString::fromUtf8(
            QByteArray::fromBase64(draft.mid(draft.indexOf("\r\n\r\n")).replace("\r\n", "")));
    }

    TempPreferences preferences;
    FakeHost machine;
    ProgramFolder programs;
    ScriptedPrompts person;
};

const QString subject = QString::fromUtf8("\"Größe\" & 50 % o'clock, \U0001F600?");
const QString body = QString::fromUtf8("Dear \"Ann\",\n\n\t$HOME `x` 'y' \\z é\r\nlast\n");
const QString sent = QString::fromUtf8("Dear \"Ann\",\r\n\r\n\t$HOME `x` 'y' \\z é\r\nlast\r\n");

TEST_F(Mail, AHundredRecipientsAndAnyTextArriveIntact)
{
    mail::SetEmailHandler(mail::SimpleMapi);
    QStringList people;
    for (int n = 0; n < 100; ++n)
        people += QString("o'neil+%1&co@mills.example").arg(n);
    EXPECT_TRUE(mail::SendMail(people.join(", "), subject, body));
    const QByteArray link = received("xdg-email");
    ASSERT_TRUE(link.startsWith("mailto:"));
    EXPECT_EQ(link.count('?'), 1);
    EXPECT_EQ(link.count('&'), 1);
    const auto part = [&link](const char *from, const char *to) {
        const qsizetype begin = link.indexOf(from) + qstrlen(from);
        return QUrl::fromPercentEncoding(link.mid(begin, link.indexOf(to, begin) - begin));
    };
    EXPECT_EQ(part("mailto:", "?"), people.join(u','));
    EXPECT_EQ(part("?subject=", "&"), subject);
    EXPECT_EQ(QUrl::fromPercentEncoding(link.mid(link.indexOf("&body=") + 6)), sent);
    EXPECT_TRUE(mail::SendMail("-removethis", {}, {}));
    EXPECT_EQ(received("xdg-email"), "mailto:-removethis?subject=&body=");
    EXPECT_FALSE(machine.isBusy());
}

TEST_F(Mail, ADraftHasCodedHeadersThatNothingCanBeAddedTo)
{
    SetPrefStr("emailhandler", "2");
    EXPECT_TRUE(mail::SendMail("a@x.example, b@m\xFC"
                               "ller.example\r\nBcc: spy@x.example,, ",
                               "Hi\r\nBcc: spy@x.example", body));
    const QByteArray draft = receivedDraft();
    EXPECT_TRUE(draft.startsWith("To: a@x.example,\r\n b@")) << draft.constData();
    EXPECT_TRUE(draft.contains("\r\nSubject: Hi  Bcc: spy@x.example\r\nX-Unsent: 1\r\n"));
    EXPECT_FALSE(draft.contains("\r\nBcc"));
    EXPECT_EQ(bodyOf(draft), "\r\n\r\n" + sent);

    const QByteArray coded = mailDraft({"b@müller.example"}, subject.repeated(5), {});
    EXPECT_TRUE(coded.startsWith("To: b@xn--mller-kva.example\r\nSubject: =?UTF-8?B?"));
    QByteArray words = coded.mid(coded.indexOf("=?"));
    words.truncate(words.indexOf("\r\nX-Unsent"));
    QString title;
    for (const QByteArray &word : words.split('\n')) {
        EXPECT_LE(word.size(), 77);
        EXPECT_TRUE(word.trimmed().endsWith("?="));
        title += QString::fromUtf8(QByteArray::fromBase64(word.trimmed().mid(10).chopped(2)));
    }
    EXPECT_EQ(title, subject.repeated(5)); // no character was cut in two
    for (const QByteArray &line : mailDraft({}, {}, QString(5000, u'x')).split('\n'))
        EXPECT_LE(line.size(), 78);
}

TEST_F(Mail, ATextTooLongForAnAddressGoesAsADraft)
{
    mail::SetEmailHandler(mail::SimpleMapi);
    EXPECT_TRUE(mail::SendMail("a@x.example", "Long", QString(200'000, u'x')));
    EXPECT_EQ(bodyOf(receivedDraft()), QString(200'000, u'x'));
}

TEST_F(Mail, WithoutAMailProgramThePersonIsTold)
{
    for (const QByteArray failing : {"exit 4", "kill -9 $$"}) {
        programs.add("xdg-email", failing);
        programs.add("xdg-open", failing);
        person
            .expectText("Unable to initiate your email software! \n\nThere is no Microsoft SIMPLE "
                        "MAPI (Messaging")
            .kind(prompts::Kind::Critical);
        EXPECT_FALSE(mail::SendMailMAPI("a@x.example", "s", "b"));
        person.expectText("Unable to initiate Microsoft Outlook!\n\nIf you intend")
            .kind(prompts::Kind::Critical);
        EXPECT_FALSE(mail::SendMailOutlook("a@x.example", "s", "b"));
    }
    for (const char *name : {"xdg-email", "xdg-open"})
        QFile::remove(programs.filePath(name));
    EXPECT_TRUE(mail::SendMailMAPI("a@x.example", "s", "b")); // by the desktop itself
    EXPECT_EQ(machine.opened(), QStringList("mailto:a@x.example?subject=s&body=b"));
    machine.setAccepts(false);
    person.expectText("Unable to initiate your email software!");
    EXPECT_FALSE(mail::SendMailMAPI("a@x.example", "s", "b"));
}

TEST_F(Mail, AProgramThatStaysOpenHasTakenTheMessage)
{
    programs.add("xdg-email", "exec /bin/sleep 30 & echo $! >\"${0%/*}/pid\"; wait");
    EXPECT_TRUE(machineHost().handOver(programs.filePath("xdg-email"), {}, 300));
    QFile pid(programs.filePath("pid"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return pid.exists() && pid.size() > 0; }));
    ASSERT_TRUE(pid.open(QIODevice::ReadOnly));
    EXPECT_EQ(machineHost().run("/bin/kill", {QString(pid.readAll().trimmed())}, 5000).exitCode, 0);
    EXPECT_FALSE(machineHost().handOver(programs.filePath("missing"), {}, 300));
}

TEST_F(Mail, TheHandlerIsAskedForOnceAndRubbishCountsAsNone)
{
    for (const char *rubbish : {"", "3", "-1", "abc"}) {
        SetPrefStr("emailhandler", rubbish);
        EXPECT_EQ(mail::GetEmailHandler(), 0) << rubbish;
        const DialogDriver driver([](QWidget *options) {
            EXPECT_EQ(options->windowTitle(), "Email Options");
            for (const QRadioButton *option : options->findChildren<QRadioButton *>())
                EXPECT_FALSE(option->isChecked());
            clickButton(options, "cmdApply"); // stores nothing
            QTest::keyClick(options, Qt::Key_Escape);
        });
        EXPECT_TRUE(mail::SendMail("a@x.example", "s", "b"));
        EXPECT_EQ(received("xdg-email"), "mailto:a@x.example?subject=s&body=b");
        EXPECT_EQ(GetPrefStr("emailhandler"), rubbish);
    }
    for (const int handler : {mail::Outlook, mail::SimpleMapi}) {
        const DialogDriver driver([handler](QWidget *options) {
            options
                ->findChild<QRadioButton *>(handler == mail::Outlook ? "optEmailOutlook"
                                                                     : "optEmailMAPI")
                ->click();
            clickButton(options, "OKButton");
        });
        mail::EmailHandlerDlg();
        EXPECT_EQ(mail::GetEmailHandler(), handler);
        frmOptions shown;
        EXPECT_EQ(shown.findChild<QRadioButton *>("optEmailOutlook")->isChecked(),
                  handler == mail::Outlook);
    }
}

TEST_F(Mail, AnAddressAloneOpensAnEmptyMessage)
{
    EXPECT_TRUE(gSys.SendEmail(" ann+x@mills.example?bcc=y&z "));
    EXPECT_EQ(machine.opened(), QStringList("mailto:ann+x@mills.example%3Fbcc%3Dy%26z"));
    person.expect("EmailMsg").kind(prompts::Kind::Information);
    clsSystem::EmailMsg("any text");
    machine.setAccepts(false);
    person.expect("Unable to launch 'mailto:b@x'!");
    EXPECT_FALSE(gSys.SendEmail("b@x"));
}

} // namespace
