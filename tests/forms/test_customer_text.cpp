// The customer as text: preview, mailing label, names.
#include "CustomerFixture.h"

#include "common/ui/Grid.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

TEST_F(CustomerForm, PreviewShowsEveryField)
{
    const qint32 category = database.addListItem(1, QStringLiteral("Gold"));
    const qint32 state = database.addListItem(3, QStringLiteral("Vaud"));
    const qint32 country = database.addListItem(4, QStringLiteral("Elbonia"));
    const QString contacts = QStringLiteral("Bob\u00feBuyer\u00fe\u00fe555-9\u00fe\r"
                                            "\u00feNameless\u00fe\u00fe\u00fe\r"
                                            "Cy\u00fe\u00feBay 1\u00fe\u00fecy@x.com\r");
    open(database.addCustomer({{"custno", "A-1"},         {"salutation", "Dr."},
                               {"firstname", "Ann"},      {"lastname", "Smith"},
                               {"company", "Acme"},       {"title", "Owner"},
                               {"address1", "Main St 1"}, {"address2", "Box 2"},
                               {"city", "Vevey"},         {"state", state},
                               {"postalcode", "1800"},    {"country", country},
                               {"workphone", "1"},        {"homephone", "2"},
                               {"mobilphone", "3"},       {"faxphone", "4"},
                               {"emailname", "a@x.com"},  {"emailname2", "b@x.com"},
                               {"custom1", "red"},        {"custom2", "blue"},
                               {"custcat", category},     {"notes", "line 1\r\nline 2"},
                               {"contacts", contacts}}));
    EXPECT_EQ(form->FormContent(), "CUSTOMER INFORMATION (ID: 1000)\n"
                                   "\n"
                                   "Customer Number:    A-1\n"
                                   "Name:               Dr. Ann Smith\n"
                                   "Company:            Acme\n"
                                   "Title:              Owner\n"
                                   "Address (line 1):   Main St 1\n"
                                   "                    Box 2\n"
                                   "                    Vevey, Vaud 1800\n"
                                   "                    Elbonia\n"
                                   "\n"
                                   "Custom 1:           red\n"
                                   "Custom 2:           blue\n"
                                   "\n"
                                   "Work Phone:         1\n"
                                   "Home Phone:         2\n"
                                   "Mobile Phone:       3\n"
                                   "Fax Phone:          4\n"
                                   "Default Email:      a@x.com\n"
                                   "Alternate Email:    b@x.com\n"
                                   "\n"
                                   "Category:           Gold\n"
                                   "\n"
                                   "Notes:\n"
                                   "line 1\n"
                                   "line 2\n"
                                   "\n"
                                   "Additional Contacts:\n"
                                   "Name:               Bob\n"
                                   "Title:              Buyer\n"
                                   "Telephone:          555-9\n"
                                   "\n"
                                   "Name:               Cy\n"
                                   "Address:            Bay 1\n"
                                   "Email:              cy@x.com\n"
                                   "\n"
                                   "\n"
                                   "\n"
                                   "Last Modified By:   SYSOP\n"
                                   "Last Modified On:   Sunday, March 14, 2004\n"
                                   "Last Modified At:   3:05:09 PM\n");
}

TEST_F(CustomerForm, LabelsOfThePreviewFollowTheCustomNamesAndAreCutAtTwenty)
{
    gDB.SetParamValue(QStringLiteral("nvncust.dbf_company"),
                      QStringLiteral("R&D and Company Name:"));
    open(database.addCustomer({{"company", "Acme"}}));
    EXPECT_TRUE(form->FormContent().contains("\nR&D and Company NameAcme\n"));
}

TEST_F(CustomerForm, PreviewAndLabelOpenAsWindows)
{
    open(database.addCustomer({{"lastname", "Smith"}, {"firstname", "Ann"}}));
    click("cmdPrint");
    click("cmdLabel");
    ASSERT_EQ(board.children().size(), 2);
    EXPECT_EQ(board.children()[0]->windowTitle(), "Customer: Smith, Ann @3:05:09 PM");
    EXPECT_EQ(board.children()[1]->windowTitle(), "Mailing label text for Smith, Ann");
}

TEST_F(CustomerForm, MailKeepsItsAddressUnusable)
{
    open(database.addCustomer({{"company", "Acme"}, {"emailname", "a@x.com"}}));
    click("cmdEmail");
    ASSERT_EQ(board.mails().size(), 1);
    EXPECT_EQ(board.mails()[0].to, "a@x.com-removethis");
    EXPECT_EQ(board.mails()[0].subject, "<<Verify Email Address and Enter Subject>>");
    EXPECT_EQ(board.mails()[0].body, form->FormContent());
    find<QToolButton>("cmdSendEmail")->click(); // the field's own address is for use
    find<QToolButton>("cmdSendEmail2")->click();
    EXPECT_EQ(machine.opened(), (QStringList{"mailto:a@x.com", "mailto:"}));
}

TEST_F(CustomerForm, MailingLabelLeavesOutWhatIsEmpty)
{
    openNew();
    EXPECT_EQ(form->MailingLabelText(), "\n");
    type("txtLname", "Smith");
    type("txtTitle", "Owner");
    type("txtCity", "Vevey");
    EXPECT_EQ(form->MailingLabelText(), "SMITH, OWNER\nVEVEY,  \n");
    type("txtFname", "Ann");
    find<QComboBox>("cboSalutation")->setEditText("Ms.");
    type("txtCity", QString());
    type("txtAddress2", "Box 2");
    type("txtPostalCode", "1800");
    EXPECT_EQ(form->MailingLabelText(), "MS. ANN SMITH, OWNER\nBOX 2\n,  1800\n");
    type("txtPostalCode", QString());
    EXPECT_EQ(form->MailingLabelText(), "MS. ANN SMITH, OWNER\nBOX 2\n");
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}

TEST_F(CustomerForm, TheNameIsCompanyFirstWhateverTheDisplayOrder)
{
    gDB.SetParamValue(QStringLiteral("CUSTOMERNAME_DISPLAY"), QStringLiteral("1"));
    openNew();
    EXPECT_EQ(form->MakeCustomerName(), "New ");
    type("txtFname", "Ann");
    EXPECT_EQ(form->MakeCustomerName(), "New ");
    type("txtLname", "Smith");
    EXPECT_EQ(form->MakeCustomerName(), "Smith, Ann");
    type("txtFname", " ");
    EXPECT_EQ(form->MakeCustomerName(), "Smith");
    type("txtCoName", "Acme");
    EXPECT_EQ(form->MakeCustomerName(), "Acme");
    EXPECT_EQ(form->windowTitle(), "Customer Name");
    person.expect("Do you wish to discard", Answer::Yes);
    form->close();
}
