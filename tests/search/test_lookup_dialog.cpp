// The dialog that asks how to find a customer.
#include "common/base/Preferences.h"
#include "common/ui/Controls.h"
#include "search/frmLookupCustomer.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{

class LookupDialog : public ::testing::Test
{
protected:
    void open()
    {
        dialog = std::make_unique<frmLookupCustomer>();
        dialog->show();
        cboType = dialog->findChild<QComboBox *>("cboType");
        txtSearch = dialog->findChild<QLineEdit *>("txtSearch");
    }
    void ask(qint32 type, const QString &text)
    {
        cboSelectAtID(cboType, type);
        txtSearch->setText(text);
        clickButton(dialog.get(), "OKButton");
    }
    bool accepted() const { return dialog->result() == QDialog::Accepted; }
    // A user with every right but the one for reports.
    void loginWithoutReports()
    {
        database.addUser("plain", "111011111111111111111111111111");
        database.loginAs("plain", "plain");
    }

    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    TempDatabase database;
    std::unique_ptr<frmLookupCustomer> dialog;
    QComboBox *cboType = nullptr;
    QLineEdit *txtSearch = nullptr;
};

constexpr char needsText[] =
    "'Search String:' must be entered. Request 'Edit Report' permission from your administrator "
    "to enable query without search string.";

} // namespace

TEST_F(LookupDialog, OffersTheSearchesInOrderWithTheLabelsOfTheDatabase)
{
    gDB.SetParamValue(clsDB::MakeCustomFieldParamName("nvncust.dbf", "custno"), "Client Code");
    gDB.SetParamValue(clsDB::MakeCustomFieldParamName("nvncust.dbf", "company"),
                      QString(5000, 'W'));
    open();
    EXPECT_LT(dialog->minimumSizeHint().width(), 1024);
    QStringList texts;
    QList<qint32> types;
    for (int row = 0; row < cboType->count(); ++row) {
        texts += cboType->itemText(row);
        types += cboType->itemData(row).toInt();
    }
    EXPECT_EQ(texts, QStringList({"Primary Contact's Last Name starts with or is:",
                                  QString(40, 'W') + "... starts with or is:",
                                  "Client Code starts with or is:", "Work Phone starts with or is:",
                                  "Phone/Address/City/Zip contains:", "Customer ID is:"}));
    EXPECT_EQ(types, QList<qint32>({1, 2, 3, 4, 6, 5}));
    EXPECT_EQ(dialog->findChild<QLabel *>("lblMsg")->text(),
              "TIP: Leave blank to display all customers");
}

TEST_F(LookupDialog, StartsWithTheLastSearchThatWasConfirmed)
{
    open();
    EXPECT_EQ(cboGetItemID(cboType), 1);
    EXPECT_EQ(txtSearch->text(), "");
    ask(SearchAddress, " main st ");
    ASSERT_TRUE(accepted());
    EXPECT_EQ(dialog->searchType(), SearchAddress);
    EXPECT_EQ(dialog->searchStr(), " main st ");

    open();
    EXPECT_EQ(cboGetItemID(cboType), SearchAddress);
    EXPECT_EQ(txtSearch->text(), " main st ");
    EXPECT_EQ(txtSearch->selectedText(), " main st ");
    cboSelectAtID(cboType, SearchNumber);
    txtSearch->setText("77");
    clickButton(dialog.get(), "CancelButton");

    EXPECT_EQ(GetPrefStr("LastCustSearchStr"), " main st ");
    EXPECT_EQ(GetPrefLong("LastCustSearchType"), SearchAddress);
}

TEST_F(LookupDialog, CustomerIdMustBeNumericEvenWithTheRightToListAll)
{
    open();
    for (const QString &text : {QString("abc"), QString("10 30"), QString()}) {
        person.expect("Customer ID must be numeric!");
        ask(SearchId, text);
        EXPECT_FALSE(accepted()) << qPrintable(text);
        EXPECT_TRUE(dialog->isVisible());
    }
    EXPECT_EQ(GetPrefLong("LastCustSearchType"), 0);
    ask(SearchId, "1000");
    EXPECT_TRUE(accepted());
}

TEST_F(LookupDialog, EmptySearchWantsTheReportRight)
{
    loginWithoutReports();
    open();
    for (const QString &text : {QString(), QString("   ")}) {
        person.expect(needsText).kind(prompts::Kind::Warning);
        ask(SearchCompany, text);
        EXPECT_FALSE(accepted());
    }
    ask(SearchCompany, "a");
    EXPECT_TRUE(accepted());
}

TEST_F(LookupDialog, EmptySearchIsForThoseWhoMayEditReports)
{
    database.addUser("clerk", clsDB::GetDefaultPermissionsStr());
    database.loginAs("clerk", "clerk");
    open();
    ask(SearchWorkPhone, "");
    EXPECT_TRUE(accepted());
}

TEST_F(LookupDialog, EnterConfirmsAndEscapeLeaves)
{
    open();
    QTest::keyClicks(txtSearch, "smith");
    QTest::keyClick(txtSearch, Qt::Key_Return);
    EXPECT_TRUE(accepted());
    open();
    QTest::keyClick(txtSearch, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_FALSE(accepted());
}
