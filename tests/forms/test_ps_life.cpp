// The life of a subscription window: its customer, its attachments, other stations.
#include "PSFixture.h"

#include "common/form/AttachmentsCtl.h"
#include "db/AttachmentFolder.h"

#include <QDir>
#include <QFile>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace
{

const char *const NoCustomer =
    "The Customer record to which this Product/Service record belongs no longer exists or is "
    "inaccessible.";

} // namespace

TEST_F(PSForm, ANewRecordHasNoAttachmentsUntilApply)
{
    openNew();
    EXPECT_EQ(form->tagText(), "P-1");
    EXPECT_EQ(form->windowTitle(), "Product/Service: New @3:05:09 PM");
    EXPECT_TRUE(find<QLabel>("lblNewPS")->isVisible());
    EXPECT_TRUE(find<QComboBox>("cboPS")->hasFocus());
    EXPECT_FALSE(find<QTabWidget>("tabs")->isTabEnabled(2));
    choose("cboPS", "Printer");
    click("cmdApply");

    EXPECT_EQ(form->tagText(), "P1000");
    EXPECT_FALSE(find<QLabel>("lblNewPS")->isVisible());
    EXPECT_EQ(find<QLabel>("lblPSID")->text(), "ID: 1000");
    EXPECT_TRUE(find<QTabWidget>("tabs")->isTabEnabled(2));
    EXPECT_FALSE(find<AttachmentsCtl>("ACtl")->Enabled());
    EXPECT_EQ(board.calls(), QStringList(u"NotifyCustomer %1 2 1000"_s.arg(customer)));
    EXPECT_EQ(textOf("txtModifiedBy"), gDB.LoginName());

    QFile file(database.file("a.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    click("lblEdit");
    showPage(2);
    person.expectOpenFile("Open file to attach", file.fileName());
    click("cmdAttach");
    EXPECT_TRUE(gDB.Attachments(1000, "_ps").contains("a.txt"));
    // What was attached is not undone with the rest.
    person.expect("Do you wish to discard", Answer::Yes);
    click("lblEdit");
    EXPECT_TRUE(gDB.Attachments(1000, "_ps").contains("a.txt"));
    EXPECT_FALSE(find<QPushButton>("cmdAttach")->isEnabled());
}

TEST_F(PSForm, DeletingTakesTheAttachmentsAlongAndLeavesTheIssues)
{
    const qint32 id = addPS({{"custid", customer}, {"psid", printer}, {"shortdesc", "Laser"}});
    const qint32 issue = database.addIssue({{"custid", customer}, {"psid", printer}});
    const AttachmentFolder folder = gDB.Attachments(id, "_ps");
    ASSERT_TRUE(folder.create());
    ASSERT_TRUE(folder.add(database.file("nvncust.dbf"), "a.txt").done());
    openForEdit(id);
    const QString question = u"Are you sure you want to *DELETE*  '"_s + form->windowTitle() +
                             u"' and all of its attachments (if any)?";
    for (const Answer refusal : {Answer::No, Answer::Cancel}) {
        person.expect(question, refusal)
            .title("DELETE Confirmation")
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::Cancel);
        click("cmdDelete");
        EXPECT_TRUE(folder.contains("a.txt"));
    }
    board.forget();
    person.expect(question, Answer::Yes);
    click("cmdDelete");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(stored(id, "shortdesc").isNull());
    EXPECT_FALSE(folder.exists());
    EXPECT_EQ(board.calls(), QStringList(u"NotifyCustomer %1 2 %2"_s.arg(customer).arg(id)));
    EXPECT_EQ(database.stored(schema::Table::Issues, issue, "psid"), QString::number(printer));
}

TEST_F(PSForm, AttachmentsThatStayAreTold)
{
    const qint32 id = addPS({{"custid", customer}, {"psid", printer}});
    const AttachmentFolder folder = gDB.Attachments(id, "_ps");
    ASSERT_TRUE(folder.create());
    QFile undeletable(folder.filePath("a*b"));
    ASSERT_TRUE(undeletable.open(QIODevice::WriteOnly));
    openForEdit(id);
    person.expect("DELETE", Answer::Yes);
    person.expect(folder.path());
    click("cmdDelete");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(PSForm, WithoutItsCustomerItCanBeReadNoMoreThanEdited)
{
    const qint32 id = addPS({{"custid", customer}, {"psid", printer}});
    openForEdit(id);
    type("txtShortDesc", "typed");
    ASSERT_TRUE(gDB.DeleteRecord(customer, gDB.CustomerTable()));
    person.expectText(NoCustomer);
    click("OKButton");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(textOf("txtShortDesc"), "typed");
    EXPECT_EQ(stored(id, "shortdesc"), "");

    person.expect("Do you wish to discard", Answer::Yes);
    person.expectText(NoCustomer); // from reading it again
    click("lblEdit");
    person.expectText(NoCustomer);
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_FALSE(machine.isBusy());
}

TEST_F(PSForm, WithoutTheRightItIsReadOnly)
{
    const qint32 id = addPS({{"custid", customer}, {"psid", printer}});
    database.addUser("jane", "1011");
    database.loginAs("jane", "jane");
    open(id);
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(markOwner(id), 0);
}

TEST_F(PSForm, AFolderThatGoesAwayCostsNoText)
{
    const qint32 id = addPS({{"custid", customer}, {"psid", printer}});
    openForEdit(id);
    type("txtShortDesc", "typed");
    const QString away = database.path() + u".away";
    ASSERT_TRUE(QDir().rename(database.path(), away));
    person.expect("Unable to open: ");
    person.expectText(NoCustomer);
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(textOf("txtShortDesc"), "typed");
    ASSERT_TRUE(QDir().rename(away, database.path()));
    click("cmdApply");
    EXPECT_EQ(stored(id, "shortdesc"), "typed");
}
