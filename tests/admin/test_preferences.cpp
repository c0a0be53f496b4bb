// Customizations: what fields are called, and what the screens make of it.
#include "admin/frmPreferences.h"

#include "common/form/SetLabels.h"
#include "common/ui/Grid.h"
#include "db/clsCustomLabels.h"
#include "db/TableUse.h"
#include "forms/frmCustomer.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace norvane::engine;
using prompts::Answer;

namespace
{

class Customizations : public ::testing::Test
{
protected:
    void open()
    {
        form = std::make_unique<frmPreferences>();
        form->show();
        grid = form->findChild<Grid *>(u"grdCustom"_s);
        window = form->findChild<QComboBox *>(u"cboWindow"_s);
    }
    void click(const char *name) const
    {
        form->findChild<QAbstractButton *>(QLatin1String(name))->click();
    }
    int rowOf(const QString &defaultName) const
    {
        for (int row = 1; row <= grid->rows(); ++row)
            if (grid->text(row, 1) == u"  " + defaultName)
                return row;
        ADD_FAILURE() << qPrintable(defaultName);
        return 0;
    }
    // As typed into the second column.
    void rename(const QString &defaultName, const QString &name) const
    {
        const QModelIndex cell = grid->model()->index(rowOf(defaultName) - 1, 1);
        EXPECT_TRUE(grid->model()->setData(cell, name, Qt::EditRole));
    }
    static QString parameter(const char *name) { return gDB.GetParamValue(QLatin1String(name)); }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempPreferences preferences;
    TempDatabase db;
    std::unique_ptr<frmPreferences> form;
    Grid *grid = nullptr;
    QComboBox *window = nullptr;
};

} // namespace

TEST_F(Customizations, EveryWindowShowsItsFieldsAndOnlyTheNamesChange)
{
    open();
    EXPECT_EQ(u"Customizations"_s, form->windowTitle());
    EXPECT_EQ(u"Company (Last Name, First Name)"_s,
              form->findChild<QRadioButton *>(u"optCustName0"_s)->text());
    const struct {
        const char *heading;
        const char *first;
        const char *last;
        int rows;
    } windows[] = {
        {"Customer Window Default Names", "  Customer Number", "  Custom 2", 20},
        {"Product/Service Window Default Names", "  Short Description", "  Custom 2", 9},
        {"Issue Window Default Names", "  Category", "  Custom 2", 3},
    };
    for (int at = 0; at < 3; ++at) {
        window->setCurrentIndex(at);
        EXPECT_EQ(grid->text(0, 1), windows[at].heading);
        EXPECT_EQ(grid->text(0, 2), "Custom Display Name");
        ASSERT_EQ(windows[at].rows, grid->rows());
        EXPECT_EQ(grid->text(1, 1), windows[at].first);
        EXPECT_EQ(grid->text(grid->rows(), 1), windows[at].last);
        for (int row = 1; row <= grid->rows(); ++row)
            EXPECT_GT(grid->text(row, 1).size(), 2) << row;
    }
    EXPECT_FALSE(grid->model()->setData(grid->model()->index(0, 0), u"x"_s, Qt::EditRole));
    grid->selectAll();
    QTest::keyClick(grid, Qt::Key_Delete);
    EXPECT_EQ(u"  Category"_s, grid->text(1, 1));
}

TEST_F(Customizations, NamesAreStoredByOkApplyAndTheQuestionOnly)
{
    open();
    rename(u"Company"_s, u"Firm"_s);
    click("optCustName1");
    EXPECT_EQ(QString(), parameter("nvncust.dbf_company"));
    click("cmdApply");
    EXPECT_EQ(u"Firm"_s, parameter("nvncust.dbf_company"));
    EXPECT_EQ(u"1"_s, parameter("CUSTOMERNAME_DISPLAY"));
    window->setCurrentIndex(2); // nothing changed since: no question
    rename(u"Custom 1"_s, u"Machine:"_s);
    const auto ask = [this](Answer answer) {
        person.expect(u"Do you want to save changes for this window?"_s, answer)
            .title(u"Save Changes?"_s)
            .buttons({Answer::Yes, Answer::No})
            .preset(Answer::No);
    };
    ask(Answer::Yes);
    window->setCurrentIndex(0);
    EXPECT_EQ(u"Firm"_s, grid->text(rowOf(u"Company"_s), 2));
    rename(u"Company"_s, u"not kept"_s);
    ask(Answer::No);
    window->setCurrentIndex(1);
    rename(u"Contract Type"_s, u"not kept"_s);
    click("CancelButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(u"Machine:"_s, CustomLabels.GetIssueLabelName(u"custom1"_s, true));
    EXPECT_EQ(u"Firm:"_s, CustomLabels.GetCustomerLabelName(u"company"_s, true));
    EXPECT_EQ(u"Contract Type"_s, CustomLabels.GetPSLabelName(u"conttype"_s));
    EXPECT_EQ(u"Tracking Number:"_s, CustomLabels.GetPSLabelName(u"trackno"_s, true));

    open();
    click("cmdReset");
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(u"Company:"_s, CustomLabels.GetCustomerLabelName(u"company"_s, true));
    EXPECT_EQ(u"1"_s, parameter("CUSTOMERNAME_DISPLAY"));
}

TEST_F(Customizations, WhatCannotBeStoredStaysOnTheScreen)
{
    gDB.SetParamValue(u"nvncust.dbf_custno"_s, u"Old"_s);
    open();
    code4lockDelay(gDB.CBEngine(), 1);
    auto other = db.otherStation();
    rename(u"Customer Number"_s, u"New"_s);
    {
        TableUse rows(*other, other->ParamTable());
        rows.select(u"sid"_s);
        ASSERT_TRUE(rows.seekText(u"NVNCUST.DBF_CUSTNO"_s, u"sid"_s));
        const RowLock lock(rows.handle());
        for (int step = 0; step < 2; ++step) {
            if (step == 1)
                person.expect(u"Do you want to save changes"_s, Answer::Yes);
            person.expect(u"RECORD LOCKED: Unable to update record!"_s);
            if (step == 0)
                click("OKButton");
            else
                window->setCurrentIndex(1);
            EXPECT_TRUE(form->isVisible());
            EXPECT_EQ(0, window->currentIndex());
            EXPECT_EQ(u"New"_s, grid->text(1, 2));
            EXPECT_EQ(u"Old"_s, parameter("nvncust.dbf_custno"));
        }
    }
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(u"New"_s, parameter("nvncust.dbf_custno"));
}

TEST_F(Customizations, AScreenTakesNewNamesWhenItIsLoadedAndStaysUsable)
{
    const qint32 id = db.addCustomer({{"lastname", u"Doe"_s}});
    frmCustomer customer;
    customer.Init(id, false);
    customer.show();
    const int width = customer.minimumSizeHint().width();
    const auto *company = customer.findChild<QLabel *>(u"lblCo"_s);
    const QString before = company->text();
    open();
    const QString longName(5000, u'W');
    rename(u"Company"_s, longName);
    rename(u"Title"_s, u"<b>R&D</b>:"_s);
    rename(u"Category"_s, u"K&T"_s);
    click("OKButton");
    EXPECT_EQ(before, company->text()) << "an open window keeps its captions";

    customer.LoadData();
    EXPECT_EQ(longName + u':', labelCaption(company));
    EXPECT_LT(company->text().size(), 50);
    EXPECT_TRUE(company->toolTip().contains(longName));
    EXPECT_LT(customer.minimumSizeHint().width(), width + 800);
    const auto *title = customer.findChild<QLabel *>(u"lblTitle"_s);
    EXPECT_EQ(u"<b>R&D</b>:"_s, labelCaption(title));
    EXPECT_EQ(Qt::PlainText, title->textFormat());

    const QList<clsCustomLabels::MenuLabel> labels = CustomLabels.MenuLabels();
    const QStringList expected{u"CATCUST=Customer K&T"_s,  u"CATSTATES=State"_s,
                               u"CATCOUNTRIES=Country"_s,  u"CATICAT=Issue Category"_s,
                               u"CATCONT=Contract Type"_s, u"CATCONTDUR=Contract Duration"_s};
    QStringList actual;
    for (const auto &label : labels)
        actual += label.key + u'=' + label.caption;
    EXPECT_EQ(expected, actual);
}
