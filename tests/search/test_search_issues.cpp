// The dialog that asks for words, product and texts of an issue search.
#include "common/base/Preferences.h"
#include "common/ui/Controls.h"
#include "search/frmSearchIssues.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace
{

class SearchIssues : public ::testing::Test
{
protected:
    void open()
    {
        dialog = std::make_unique<frmSearchIssues>();
        dialog->show();
    }
    template <class Control>
    Control *control(const char *name) const
    {
        return dialog->findChild<Control *>(QLatin1String(name));
    }
    QString text() const { return control<QLineEdit>("txtSearch")->text(); }
    QComboBox *combo(const char *name) const { return control<QComboBox>(name); }
    // Of the three texts, by their numbers: "02".
    QString ticked() const
    {
        QString which;
        for (const char number : {'0', '1', '2'})
            if (control<QCheckBox>(qPrintable(QStringLiteral("ckSearchWhat_") + number))
                    ->isChecked())
                which += QLatin1Char(number);
        return which;
    }
    void tick(const QString &which)
    {
        for (const QChar number : which)
            control<QCheckBox>(qPrintable(QStringLiteral("ckSearchWhat_") + number))
                ->setChecked(true);
    }
    bool accepted() const { return dialog->result() == QDialog::Accepted; }

    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    TempDatabase database;
    std::unique_ptr<frmSearchIssues> dialog;
};

} // namespace

TEST_F(SearchIssues, BeginsEmptyWithTheProductsOfTheDatabase)
{
    const qint32 tills = database.addListItem(2, "Tills");
    database.addListItem(1, "No product");
    open();
    EXPECT_EQ(text(), "");
    EXPECT_EQ(ticked(), "");
    EXPECT_EQ(combo("cboType")->currentText(), "ANY of these Words");
    EXPECT_EQ(combo("cboType")->itemText(1), "ALL of these Words");
    EXPECT_EQ(combo("cboPS")->currentText(), "All Products/Services");
    EXPECT_GE(combo("cboPS")->findData(tills), 1);
    EXPECT_EQ(combo("cboPS")->findText("No product"), -1);
    EXPECT_EQ(control<QLabel>("lblMsg")->text(),
              "Leave blank to display all issues for the selected Product/Service");
    EXPECT_LE(dialog->minimumSizeHint().width(), 900);
}

TEST_F(SearchIssues, WantsSomethingToSearchIn)
{
    open();
    control<QLineEdit>("txtSearch")->setText("jam");
    person.expectText("Please check at least one item next to 'Search what'.");
    clickButton(dialog.get(), "OKButton");
    EXPECT_FALSE(accepted());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(GetPrefStr("LastIssueSearchStr"), "");
    tick("1");
    QTest::keyClick(control<QLineEdit>("txtSearch"), Qt::Key_Return);
    EXPECT_TRUE(accepted());
}

TEST_F(SearchIssues, GivesWhatWasAskedForAndRemembersIt)
{
    const qint32 tills = database.addListItem(2, "Tills");
    open();
    control<QLineEdit>("txtSearch")->setText(" paper  jam");
    cboSelectAtID(combo("cboType"), 2);
    cboSelectAtID(combo("cboPS"), tills);
    tick("02");
    clickButton(dialog.get(), "OKButton");
    ASSERT_TRUE(accepted());
    const IssueQuery &query = dialog->query();
    EXPECT_EQ(query.text, " paper  jam");
    EXPECT_EQ(query.type, 2);
    EXPECT_EQ(query.psid, tills);
    EXPECT_TRUE(query.inShortDesc && query.inResolution && !query.inDesc);

    open();
    EXPECT_EQ(text(), " paper  jam");
    EXPECT_EQ(cboGetItemID(combo("cboType")), 2);
    EXPECT_EQ(cboGetItemID(combo("cboPS")), tills);
    EXPECT_EQ(ticked(), "02");
    clickButton(dialog.get(), "cmdClear");
    EXPECT_EQ(text(), "");
    EXPECT_EQ(ticked(), "02");
    clickButton(dialog.get(), "cmdReset");
    EXPECT_EQ(cboGetItemID(combo("cboType")), 1);
    EXPECT_LT(cboGetItemID(combo("cboPS")), 1);
    EXPECT_EQ(ticked(), "");
    clickButton(dialog.get(), "CancelButton");

    open(); // what was cancelled is not remembered
    EXPECT_EQ(text(), " paper  jam");
    EXPECT_EQ(ticked(), "02");
}

TEST_F(SearchIssues, AProductThatIsGoneLeavesAllOfThem)
{
    const qint32 tills = database.addListItem(2, "Tills");
    SetPrefLong("LastIssueSearchPSID", tills);
    SetPrefLong("LastIssueSearchType", 7);
    SetPrefLong("LastIssueSearchDesc", 5);
    ASSERT_TRUE(gDB.DeleteRecord(tills, gDB.CategoryTable()));
    open();
    EXPECT_EQ(combo("cboPS")->currentText(), "All Products/Services");
    EXPECT_EQ(cboGetItemID(combo("cboType")), 1);
    EXPECT_EQ(ticked(), "");
}
