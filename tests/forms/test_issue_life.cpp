// An issue among others: its customer, its actions and attachments, other stations, and saves that
// fail.
#include "IssueFixture.h"

#include "common/ui/FormWindow.h"
#include "db/Screens.h"
#include "support/Station.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>

namespace
{

const char *const NoCustomer = "The Customer record to which this Product/Service record belongs "
                               "no longer exists or is inaccessible.";
const char *const Gone = "Record cannot be accessed or no longer exists.";

void attach(qint32 issue, const QString &name)
{
    const QString folder = gDB.GetAttachmentSubDir(issue, QStringLiteral("_i"));
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile file(clsDB::MakePath(folder, name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

} // namespace

TEST_F(IssueForm, DeletingTakesActionsAndAttachmentsAlong)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    const qint32 other = addIssue(QStringLiteral("y"));
    addAction({{"issueid", id}});
    addAction({{"issueid", id}});
    const qint32 kept = addAction({{"issueid", other}});
    attach(id, QStringLiteral("a.txt"));
    attach(other, QStringLiteral("b.txt"));
    openForEdit(id);
    const QString question = QStringLiteral("Are you sure you want to *DELETE*  '") +
                             form->windowTitle() + u"' and all of its attachments (if any)?";
    person.expect(question, Answer::No)
        .title(QStringLiteral("DELETE Confirmation"))
        .preset(Answer::Cancel);
    click("cmdDelete");
    EXPECT_EQ(stored(id, "shortdesc"), "x");
    board.forget();

    person.expect(question, Answer::Yes);
    click("cmdDelete");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(stored(id, "shortdesc").isNull());
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesActionsTable(), QStringLiteral("rowid")), 1);
    EXPECT_FALSE(
        database.stored(schema::Table::IssuesActions, kept, QStringLiteral("issueid")).isNull());
    EXPECT_FALSE(QFile::exists(gDB.GetAttachmentSubDir(id, QStringLiteral("_i"))));
    EXPECT_TRUE(QFile::exists(gDB.GetAttachmentSubDir(other, QStringLiteral("_i"))));
    EXPECT_EQ(board.calls().filter(QStringLiteral("NotifyCustomer %1 1").arg(customer)).size(), 1);
}

TEST_F(IssueForm, AnIssueThatCannotBeDeletedStaysWithWhatIsLeft)
{
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    const qint32 id = addIssue(QStringLiteral("x"));
    addAction({{"issueid", id}});
    attach(id, QStringLiteral("a.txt"));
    openForEdit(id);
    Station remote(database.path());
    ASSERT_EQ(remote.ask(QStringLiteral("lockrow nvnissues.dbf %1").arg(id)), "ok");
    person.expect("Are you sure", Answer::Yes);
    person.expect("RECORD LOCKED: Unable to Delete from ");
    click("cmdDelete");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    EXPECT_EQ(stored(id, "shortdesc"), "x");
    EXPECT_TRUE(QFile::exists(gDB.GetAttachmentSubDir(id, QStringLiteral("_i"))));
    EXPECT_EQ(find<QLabel>("lblTotalDuration")->text(), "Total Duration = 0.00");
    EXPECT_FALSE(find<QWidget>("cmdDel")->isEnabled()); // the actions went first
    ASSERT_EQ(remote.ask(QStringLiteral("unlock")), "ok");
    discard();
}

TEST_F(IssueForm, WithoutItsCustomerAnIssueIsOnlyLookedAt)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    open(id);
    ASSERT_TRUE(gDB.DeleteRecord(customer, gDB.CustomerTable()));
    person.expectText(NoCustomer);
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());

    person.expectText(NoCustomer);
    openNew();
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(textOf("txtDateSubmit"), "");
    choose("cboPS", "Printer");
    type("txtShortDesc", "Typed");
    person.expectText(NoCustomer);
    click("OKButton");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(textOf("txtShortDesc"), "Typed");
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), QStringLiteral("rowid")), 1);
    discard();
}

TEST_F(IssueForm, OpenedByItsNumberAnIssueSaysWhoseItIs)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    const qint32 real = std::exchange(customer, -1);
    open(id);
    EXPECT_EQ(form->custid(), real);
    EXPECT_EQ(find<QLabel>("lblCustomer")->text(), "Acme (Smith, Ann)");
}

// Another process edits, locks and deletes while this window is at it.
TEST_F(IssueForm, TwoStationsOnOneIssue)
{
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    const qint32 id = addIssue(QStringLiteral("Start"));
    const QString row = QStringLiteral("nvnissues.dbf %1").arg(id);
    Station remote(database.path());
    ASSERT_EQ(remote.ask(u"setmark " + row), "ok");
    open(id);
    QString holder;
    bool editAnyway = false;
    const auto before =
        std::exchange(screens().askUnderEdit, [&](const QString &user, const QString &station) {
            holder = user.toLower() + u'@' + station;
            return editAnyway;
        });
    click("lblEdit");
    EXPECT_EQ(holder, "sysop@REMOTE");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(remote.ask(u"read " + row + u" edtstation"), "ok REMOTE");

    // Past the question the mark is ours, and the other's save still goes through.
    editAnyway = true;
    click("lblEdit");
    ASSERT_TRUE(form->inEditMode());
    EXPECT_EQ(remote.ask(u"read " + row + u" edtstation"), "ok STATION1");
    EXPECT_EQ(remote.ask(u"saverow _issue " + row + u" shortdesc Theirs"), "ok");
    type("txtShortDesc", "Ours");

    ASSERT_EQ(remote.ask(u"lockrow " + row), "ok");
    person.expect("RECORD LOCKED: Unable to update record!");
    person.expect("RECORD LOCKED: Unable to update record!"); // the mark
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(textOf("txtShortDesc"), "Ours");
    EXPECT_EQ(remote.ask(QStringLiteral("unlock")), "ok");

    click("cmdApply"); // the last save wins
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(stored(id, "shortdesc"), "Ours");
    EXPECT_EQ(markOwner(id), 0);

    click("lblEdit");
    type("txtShortDesc", "Too late");
    EXPECT_EQ(remote.ask(u"delete " + row), "ok");
    person.expectText(Gone);
    click("OKButton");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    EXPECT_EQ(textOf("txtShortDesc"), "Too late");
    screens().askUnderEdit = before;
    discard();
}

TEST_F(IssueForm, ALockedCounterCostsANewIssueNothing)
{
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    addIssue(QStringLiteral("first")); // the counter is there
    Station remote(database.path());
    ASSERT_EQ(remote.ask(QStringLiteral("lockcounter nvnissues.dbf")), "ok");
    openNew();
    choose("cboPS", "Printer");
    type("txtShortDesc", "Typed");
    person.expect("RECORD LOCKED: Unable to get next id (locked)!");
    click("OKButton");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    EXPECT_EQ(form->rowid(), -1);
    EXPECT_EQ(textOf("txtShortDesc"), "Typed");
    ASSERT_EQ(remote.ask(QStringLiteral("unlock")), "ok");
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stored(1001, "shortdesc"), "Typed");
}

TEST_F(IssueForm, AFolderThatGoesAwayCostsNoTypedText)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    openForEdit(id);
    showPage(2);
    auto *desc = find<QPlainTextEdit>("txtDesc");
    desc->setPlainText("A long story");
    const QDir folder(database.path());
    const QString elsewhere = folder.path() + QLatin1String(".away");
    ASSERT_TRUE(QDir().rename(folder.path(), elsewhere));
    person.expect("Unable to open");
    person.expectText(NoCustomer);
    click("OKButton");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    EXPECT_EQ(desc->toPlainText(), "A long story");
    ASSERT_TRUE(QDir().rename(elsewhere, folder.path()));
    click("OKButton");
    EXPECT_EQ(stored(id, "desc"), "A long story");
}

TEST_F(IssueForm, WithoutTheRightAnIssueCanBeReadOnly)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    database.addUser(QStringLiteral("jane"), QStringLiteral("1101"));
    database.loginAs(QStringLiteral("jane"), QStringLiteral("jane"));
    open(id);
    EXPECT_EQ(textOf("txtShortDesc"), "x");
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
}
