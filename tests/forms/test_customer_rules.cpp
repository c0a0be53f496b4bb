// What a customer must have before it is saved, and what keeps it from being deleted.
#include "CustomerFixture.h"

#include "common/form/FieldBinding.h"
#include "common/ui/Grid.h"
#include "db/clsLookupCustomer.h"

#include <QLineEdit>

TEST_F(CustomerForm, ValidationTellsTheFirstProblemOnly)
{
    const auto saveFailsWith = [this](const char *text) {
        person.expectText(QLatin1String(text)).kind(prompts::Kind::Critical);
        click("cmdApply");
        EXPECT_TRUE(form->inEditMode());
        EXPECT_EQ(person.texts().last(), QLatin1String(text));
    };
    openNew();
    type("txtLname", "  ");
    type("txtEmailName", "a@b@c");
    type("txtEmailName2", "with blank@x");
    saveFailsWith("Customer's last name or company name must be specified!");
    type("txtCoName", "Acme");
    saveFailsWith("Default email address entered is not a valid email address!");
    type("txtEmailName", " bob "); // without "@" it is accepted
    saveFailsWith("Alternate email address entered is not a valid email address!");
    type("txtEmailName2", "ann@example.com");
    click("cmdApply");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(stored(1000, "company"), "Acme");
}

TEST_F(CustomerForm, ContactsThatCouldNotBeReadBackAreRefused)
{
    openNew();
    type("txtCoName", "Acme");
    find<Grid>("grdContacts")->setText(1, 3, QString(int(binding::kMemoLimit), u'x'));
    person.expectText("The additional contacts hold more text than can be stored.");
    click("OKButton");
    EXPECT_TRUE(form->inEditMode());
}

TEST_F(CustomerForm, ADuplicateNumberIsAskedAbout)
{
    database.addCustomer({{"company", "One"}, {"custno", "ab-7"}});
    database.addCustomer({{"company", "Two"}, {"custno", "AB-7"}});
    database.addCustomer({{"company", "Longer"}, {"custno", "AB-77"}});
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    type("txtCustNo", "  Ab-7 ");

    person
        .expect("There are 2 other customer(s) with the same Customer Number 'Ab-7' in your "
                "database. Choose View | Lookup Customer to find the customers with the same "
                "Customer Number. \n\nDo you want to add this customer with the duplicate "
                "Customer Number anyways?",
                Answer::No)
        .buttons({Answer::Yes, Answer::No, Answer::Cancel})
        .preset(Answer::Cancel);
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(stored(id, "custno"), "");

    person.expect("There are 2 other customer(s)", Answer::Yes);
    click("cmdApply");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(stored(id, "custno"), "Ab-7"); // trimmed
}

TEST_F(CustomerForm, OnesOwnNumberAndNoNumberAreNoDuplicates)
{
    database.addCustomer({{"company", "Without"}});
    const qint32 id = database.addCustomer({{"company", "Acme"}, {"custno", "9"}});
    openForEdit(id);
    click("cmdApply");
    EXPECT_FALSE(form->inEditMode());
    click("lblEdit");
    type("txtCustNo", "   ");
    click("cmdApply");
    EXPECT_FALSE(form->inEditMode());
}

TEST_F(CustomerForm, CountingANumberSeesThroughCaseAndBlanks)
{
    const auto count = [](const char *number, qint32 except) {
        return clsLookupCustomer::CustomersWithCustomerNumber(QLatin1String(number), except);
    };
    const qint32 first = database.addCustomer({{"custno", "x1"}});
    database.addCustomer({{"custno", "   X1"}}); // as another program may have stored it
    database.addCustomer({{"custno", "x12"}});
    const qint32 none = database.addCustomer({{"company", "Without"}});
    EXPECT_EQ(count("X1", -1), 2);
    EXPECT_EQ(count(" x1 ", first), 1);
    EXPECT_EQ(count("x", -1), 0);
    EXPECT_EQ(count("", -1), 1); // only those without a number
    EXPECT_EQ(count("", none), 0);

    const clsDB::Handle table = gDB.OpenTable(gDB.CustomerTable());
    EXPECT_EQ(clsLookupCustomer::CustomersWithCustomerNumber(QStringLiteral("x12"), -1, table), 1);
    gDB.CloseTable(table);
}

TEST_F(CustomerForm, ACustomerWithRecordsOfItsOwnCannotBeDeleted)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    const QString head = QStringLiteral("Unable to delete customer because:\n");
    const QString subscriptions =
        QStringLiteral("  - 'Customer: Acme @3:05:09 PM' has Product/Services associated (Cancel "
                       "Edit & see Product/Services tab).\n");
    const QString issues = QStringLiteral("  - 'Customer: Acme @3:05:09 PM' has Issues associated "
                                          "(Cancel Edit & see Issues tab).\n");
    database.addIssue({{"custid", id}});
    person.expectText(head + issues).kind(prompts::Kind::Warning);
    click("cmdDelete");
    database.addSubscription({{"custid", id}});
    person.expectText(head + subscriptions + issues).kind(prompts::Kind::Warning);
    click("cmdDelete");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(stored(id, "company"), "Acme");
}

TEST_F(CustomerForm, DeletingAsksFirst)
{
    const qint32 other = database.addCustomer({{"company", "Other"}});
    database.addIssue({{"custid", other}}); // of somebody else
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    const char *const question = "Are you sure you want to *DELETE*  'Customer: Acme @3:05:09 PM'?";
    person.expect(question, Answer::Cancel)
        .title(QStringLiteral("DELETE Confirmation"))
        .kind(prompts::Kind::Question)
        .preset(Answer::Cancel);
    click("cmdDelete");
    EXPECT_TRUE(form->isVisible());

    person.expect(question, Answer::Yes);
    click("cmdDelete");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(stored(id, "company").isNull());
    EXPECT_EQ(stored(other, "company"), "Other");
}
