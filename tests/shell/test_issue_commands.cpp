// The main window's commands for issues and their templates.
#include "MainWindowFixture.h"

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"
#include "forms/frmIssue.h"
#include "support/DialogDriver.h"

#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>

namespace
{

class IssueCommands : public MainWindow
{
protected:
    void SetUp() override
    {
        openWithDatabase();
        customer = database->addCustomer({{"company", "Acme"}});
        issue = database->addIssue({{"custid", customer}, {"shortdesc", "Jam"}});
    }
    qint32 customer = 0;
    qint32 issue = 0;
};

} // namespace

TEST_F(IssueCommands, AnIssueIsLookedUpByItsNumber)
{
    person.expectInput("Enter Issue ID", QStringLiteral("abc")).title("Norvane").helpContext(1220);
    person.expect("Please enter a numeric value for Issue ID!");
    person.expectInput("Enter Issue ID", QString::number(issue));
    choose("mnuViewLookupByIssueNumber");
    EXPECT_EQ(openTags(), QStringList(u'I' + QString::number(issue)));
    EXPECT_EQ(qobject_cast<frmIssue *>(window("frmIssue"))->custid(), customer);

    person.expectInput("Enter Issue ID", QStringLiteral("99999"));
    person.expectText("Record cannot be accessed or no longer exists.");
    choose("mnuViewLookupByIssueNumber");
    person.expectInput("Enter Issue ID", QString());
    choose("mnuViewLookupByIssueNumber");
    EXPECT_EQ(openForms().size(), 1);
}

TEST_F(IssueCommands, AnIssueThatIsOpenIsRaisedAndLoadsNothing)
{
    main->ShowIssue(issue, customer, false, -1);
    FormWindow *form = window("frmIssue");
    form->findChild<QPushButton *>("lblEdit")->click();
    form->findChild<QLineEdit *>("txtShortDesc")->setText("Typed");
    main->ShowCustomer(customer, false);
    main->ShowIssue(issue, customer, false, -1);
    EXPECT_EQ(openForms().size(), 2);
    EXPECT_EQ(area()->activeSubWindow()->widget(), form);
    EXPECT_EQ(form->findChild<QLineEdit *>("txtShortDesc")->text(), "Typed");
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}

// From the customer's list to the saved issue and back into the list.
TEST_F(IssueCommands, ANewIssueStartsFromATemplateAndAppearsAtTheCustomer)
{
    ASSERT_TRUE(gDB.SetParamValue("ENABLE_ISSUE_TEMPLATES", "1"));
    const qint32 product = database->addListItem(2, "Printer");
    const qint32 prepared = database->add(
        "_issuetemplate", {{"psid", product}, {"shortdesc", "Paper jam"}, {"priority", 450}});
    main->ShowCustomer(customer, false);
    FormWindow *owner = window("frmCustomer");
    owner->findChild<QTabWidget *>("tabs")->setCurrentIndex(3);
    {
        const DialogDriver driver([](QWidget *dialog) { clickButton(dialog, "cmdCancel"); });
        owner->findChild<QPushButton *>("cmdNewIssue")->click();
    }
    EXPECT_EQ(openForms().size(), 1);
    {
        const DialogDriver driver([prepared](QWidget *dialog) {
            LvSelectItem(dialog->findChild<ListView *>(), u'N' + QString::number(prepared));
            clickButton(dialog, "cmdOK");
        });
        owner->findChild<QPushButton *>("cmdNewIssue")->click();
    }
    FormWindow *form = window("frmIssue");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->tagText(), "I-1");
    form->findChild<QPushButton *>("OKButton")->click();
    auto *issues = owner->findChild<ListView *>("lvIssues");
    ASSERT_EQ(issues->itemCount(), 2);
    EXPECT_EQ(LvGetSelectedItemKey(issues), u'N' + QString::number(issue + 1));
    owner->findChild<QPushButton *>("cmdPropertiesIssues")->click();
    EXPECT_TRUE(IsFormLoaded(u'I' + QString::number(issue + 1)));
}

TEST_F(IssueCommands, TheListOfTemplatesOpensOneForEditing)
{
    const qint32 prepared = database->add("_issuetemplate", {{"shortdesc", "Paper jam"}});
    {
        const DialogDriver driver([prepared](QWidget *dialog) {
            LvSelectItem(dialog->findChild<ListView *>(), u'N' + QString::number(prepared));
            clickButton(dialog, "cmdEdit");
        });
        choose("ADITEMP");
    }
    FormWindow *form = window("frmIssueTemplate");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->tagText(), u'T' + QString::number(prepared));
    EXPECT_EQ(form->findChild<QPushButton *>("lblEdit")->text(), "Cancel Edi&t");
    form->findChild<QPushButton *>("OKButton")->click();

    ASSERT_TRUE(gDB.DeleteRecord(prepared, gDB.IssuesTemplatesTable()));
    person.expectText("Record cannot be accessed or no longer exists.");
    main->ShowIssueTemplate(prepared, true);
    database->addUser("jane", "111111");
    database->loginAs("jane", "jane");
    person.expectText("Sorry, you are not permitted to perform this action.");
    choose("mnuViewDatabaseAdminIssueTemplates");
    EXPECT_TRUE(openForms().isEmpty());
}
