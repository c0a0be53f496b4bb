// The window of a report's definition and its two pick dialogs: what is chosen is what is stored.
#include "forms/FormFixture.h"
#include "reports/frmReportDef.h"
#include "reports/frmRptDisplayColumns.h"
#include "reports/frmRptFilterColumns.h"
#include "support/DialogDriver.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace
{

// Company and last name of prospects outside Oregon, with row numbers, on a portrait page.
const QString Prospects = u"1\n106~105\n201~202\n=~#\n10~291\n1\n0"_s;

QStringList rows(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts += list->item(row)->text();
    return texts;
}

QStringList items(const QComboBox *combo)
{
    QStringList texts;
    for (int item = 0; item < combo->count(); ++item)
        texts += combo->itemText(item);
    return texts;
}

class ReportDefinitionForm : public FormFixture<frmReportDef>
{
protected:
    qint32 addReport(const QString &title, const QString &def, const QString &type = u"C"_s)
    {
        return database.add(u"_rptdef"_s, {{"title", title}, {"type", type}, {"def", def}});
    }
    void openNew(const QString &type)
    {
        auto made = std::make_unique<frmReportDef>();
        made->setReportType(type);
        open(std::move(made), -1, true);
    }
    void openForEdit(qint32 id)
    {
        open(std::make_unique<frmReportDef>(), id, false);
        click("lblEdit");
        ASSERT_TRUE(form->inEditMode());
    }
    QStringList columns() const { return rows(find<QListWidget>("lstColumns")); }
    QStringList criteria() const { return rows(find<QListWidget>("lstFilters")); }
    void select(const char *list, int row) const { find<QListWidget>(list)->setCurrentRow(row); }
    bool isOn(const char *button) const { return find<QAbstractButton>(button)->isChecked(); }
    QString stored(const char *field, qint32 id = 0) const
    {
        return database.stored(schema::Table::Report, id > 0 ? id : form->rowid(),
                               QLatin1String(field));
    }

    void pickColumns(const QStringList &names)
    {
        const DialogDriver driver([&names](QWidget *dialog) {
            auto *offered = dialog->findChild<QListWidget *>();
            offered->clearSelection();
            for (const QString &name : names)
                for (QListWidgetItem *item : offered->findItems(name, Qt::MatchExactly))
                    item->setSelected(true);
            clickButton(dialog, u"OKButton"_s);
        });
        click("cmdDisplayCols");
    }
    void pickCriterion(const QString &column, const char *oper, const QString &value)
    {
        const DialogDriver driver([&](QWidget *dialog) {
            dialog->findChild<QComboBox *>(u"cboCols"_s)->setCurrentText(column);
            dialog->findChild<QAbstractButton *>(QLatin1String(oper))->click();
            dialog->findChild<QComboBox *>(u"cboValues"_s)->setCurrentText(value);
            clickButton(dialog, u"OKButton"_s);
        });
        click("cmdAddFilter");
    }
    // What a dialog offers, looked at and given up.
    QStringList offered(const char *button)
    {
        QStringList texts;
        const DialogDriver driver([&texts](QWidget *dialog) {
            const auto *list = dialog->findChild<QListWidget *>();
            texts =
                list != nullptr ? rows(list) : items(dialog->findChild<QComboBox *>(u"cboCols"_s));
            clickButton(dialog, u"CancelButton"_s);
        });
        click(button);
        return texts;
    }
};

} // namespace

TEST_F(ReportDefinitionForm, ANewReportIsMadeOfWhatIsPicked)
{
    openNew(u"C"_s);
    EXPECT_EQ(form->windowTitle(), "Report Definition: New @3:05:09 PM");
    EXPECT_EQ(form->tagText(), "REPORTDEF-1");
    EXPECT_EQ(form->helpTopic(), 1400);
    EXPECT_EQ(find<QLabel>("lblType")->text(), "Customers");
    EXPECT_TRUE(isOn("optOrientation_0") && isOn("ckShowRowNum") && !isOn("ckGroupByFirstCol"));
    EXPECT_TRUE(find<QWidget>("lblEdit")->isHidden());
    EXPECT_FALSE(find<QWidget>("cmdDelete")->isEnabled());

    pickColumns({u"City"_s, u"Last Name"_s, u"Products/Services"_s});
    EXPECT_EQ(columns(), (QStringList{"Last Name", "City", "Products/Services"})); // by place
    pickColumns({u"Customer ID"_s});
    select("lstColumns", 3);
    click("cmdDispColUp");
    click("cmdDispColUp");
    click("cmdDispColUp");
    click("cmdDispColUp"); // is the first already
    EXPECT_EQ(columns(), (QStringList{"Customer ID", "Last Name", "City", "Products/Services"}));
    EXPECT_EQ(find<QListWidget>("lstColumns")->currentRow(), 0);
    click("cmdDispColDown");
    select("lstColumns", 3);
    click("cmdDispColDown");
    click("cmdDelDispCol");
    EXPECT_EQ(columns(), (QStringList{"Last Name", "Customer ID", "City"}));

    pickCriterion(u"State"_s, "optOper_1", u"Oregon"_s);
    const qint32 oregon = gDB.CategoryExists(u"Oregon"_s, 3);
    pickCriterion(u"Category"_s, "optOper_0", u"Prospect"_s);
    EXPECT_EQ(criteria(), (QStringList{u"State # 'Oregon' [%1]"_s.arg(oregon),
                                       u"Category = 'Prospect' [10]"_s}));
    find<QAbstractButton>("optOrientation_1")->click();
    find<QAbstractButton>("ckGroupByFirstCol")->click();
    find<QAbstractButton>("ckShowRowNum")->click();
    type("txtRptTitle", u"Prospects outside Oregon, by name and city"_s);
    showPage(1);
    click("cmdDTStamp_Notes");
    click("cmdApply");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(stored("title"), "Prospects outside Oregon, by name and city");
    EXPECT_EQ(stored("type"), "C");
    EXPECT_EQ(stored("def"), u"1\n105~101~111\n202~201\n#~=\n%1~10\n0\n0"_s.arg(oregon));
    EXPECT_EQ(stored("notes"), "3/14/2004 @ 3:05:09 PM by SYSOP");
    EXPECT_EQ(form->tagText(), u"REPORTDEF%1"_s.arg(form->rowid()));
    EXPECT_EQ(form->windowTitle(),
              "Report Definition: Prospects outside Oregon, by n... @3:05:09 PM");
    EXPECT_EQ(board.calls(), QStringList(u"NotifyReportList %1"_s.arg(form->rowid())));
}

// Opening and saving changes nothing but what a person changes.
TEST_F(ReportDefinitionForm, EveryReportOfANewDatabaseGoesThroughTheEditorUnchanged)
{
    for (qint32 id = 101; id <= 118; ++id) {
        const QString before = stored("def", id);
        ASSERT_FALSE(before.isEmpty());
        openForEdit(id);
        EXPECT_FALSE(columns().join(u' ').contains(u"Unknown"_s)) << id;
        EXPECT_FALSE(criteria().join(u' ').contains(u"''"_s)) << id; // each value has its name
        click("OKButton");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(stored("def", id), before);
    }
}

TEST_F(ReportDefinitionForm, AStoredReportIsShownAndLockedUntilItIsEdited)
{
    const qint32 id = addReport(u"Prospects"_s, Prospects);
    open(std::make_unique<frmReportDef>(), id, false);
    EXPECT_EQ(columns(), (QStringList{"Company", "Last Name"}));
    EXPECT_EQ(criteria().first(), "Category = 'Prospect' [10]");
    EXPECT_TRUE(isOn("ckGroupByFirstCol") && isOn("ckShowRowNum") && isOn("optOrientation_1"));
    const QList<const char *> locked{"OKButton",       "cmdApply",      "cmdDelete",
                                     "fraOptions",     "lstColumns",    "lstFilters",
                                     "cmdDisplayCols", "cmdDelDispCol", "cmdDispColUp",
                                     "cmdDispColDown", "cmdAddFilter",  "cmdDelFilter"};
    for (const char *name : locked)
        EXPECT_FALSE(find<QWidget>(name)->isEnabled()) << name;
    EXPECT_TRUE(find<QLineEdit>("txtRptTitle")->isReadOnly());
    EXPECT_TRUE(find<QPlainTextEdit>("txtNote")->isReadOnly());
    EXPECT_TRUE(find<QWidget>("cmdRefresh")->isEnabled());
    QTest::keyClick(form.get(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(markOf(schema::Table::Report, id), gDB.LoginID());
    for (const char *name : locked)
        EXPECT_TRUE(find<QWidget>(name)->isEnabled()) << name;
    discard();
    EXPECT_EQ(markOf(schema::Table::Report, id), 0);
}

TEST_F(ReportDefinitionForm, ChangesOfListsAndOptionsAreGivenUpOnlyAfterAQuestion)
{
    const qint32 id = addReport(u"Prospects"_s, Prospects);
    openForEdit(id);
    pickColumns({u"City"_s});
    select("lstFilters", 0);
    click("cmdDelFilter");
    find<QAbstractButton>("optOrientation_0")->click();
    person.expect("Do you wish to discard your changes (if any)?", Answer::No);
    form->close();
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    EXPECT_EQ(columns().size(), 3);
    person.expect("Do you wish to discard your changes (if any)?", Answer::Yes);
    click("lblEdit");
    EXPECT_EQ(columns(), (QStringList{"Company", "Last Name"}));
    EXPECT_EQ(criteria().size(), 2);
    EXPECT_TRUE(isOn("optOrientation_1"));
    EXPECT_EQ(form->FormRptDef(), Prospects);
    EXPECT_EQ(stored("def"), Prospects);
}

TEST_F(ReportDefinitionForm, ATitleAndAColumnAreWanted)
{
    openNew(u"I"_s);
    type("txtRptTitle", u"   "_s);
    person
        .expectText("Please correct the following data entry fields:\n\n"
                    "  - REPORT TITLE must be entered.\n"
                    "  - Please select at least one column to display.\n")
        .kind(prompts::Kind::Critical);
    click("OKButton");
    type("txtRptTitle", u"Numbers"_s);
    person.expectText("fields:\n\n  - Please select at least one column to display.\n");
    click("OKButton");
    EXPECT_TRUE(form->inEditMode());
    pickColumns({u"Issue ID"_s});
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stored("def"), "0\n301\n\n\n\n1\n1");
    EXPECT_EQ(stored("type"), "I");
}

TEST_F(ReportDefinitionForm, EachColumnIsOfferedOnce)
{
    openForEdit(addReport(u"Prospects"_s, Prospects));
    EXPECT_EQ(offered("cmdDisplayCols").count(u"Company"_s), 0);
    EXPECT_EQ(offered("cmdDisplayCols").size(), 24);
    EXPECT_EQ(offered("cmdAddFilter"), (QStringList{"Country", "Products/Services"}));
    EXPECT_EQ(columns().size(), 2); // nothing came of looking
    select("lstColumns", 0);
    click("cmdDelDispCol");
    select("lstFilters", 1);
    click("cmdDelFilter");
    EXPECT_EQ(offered("cmdDisplayCols").count(u"Company"_s), 1);
    EXPECT_EQ(offered("cmdAddFilter"), (QStringList{"State", "Country", "Products/Services"}));

    find<QListWidget>("lstFilters")->clear();
    person.expect("Please select a listbox item first!");
    click("cmdDelFilter");
    click("cmdDelDispCol");
    click("cmdDispColUp"); // nothing there to move
    click("cmdDispColDown");
    EXPECT_TRUE(columns().isEmpty());
    discard();
}

TEST_F(ReportDefinitionForm, ThePickDialogsInsistOnAChoice)
{
    openNew(u"I"_s);
    {
        const DialogDriver driver([this](QWidget *dialog) {
            person.expect("Please select one or more columns to display before pressing OK.")
                .kind(prompts::Kind::Warning);
            clickButton(dialog, u"OKButton"_s);
            EXPECT_TRUE(dialog->isVisible());
            auto *columns = dialog->findChild<QListWidget *>();
            columns->selectAll();
            Q_EMIT columns->itemDoubleClicked(columns->item(0));
        });
        click("cmdDisplayCols");
    }
    EXPECT_EQ(columns().size(), 16);
    EXPECT_EQ(form->focusWidget(), find<QListWidget>("lstColumns"));
    const DialogDriver driver([this](QWidget *dialog) {
        auto *column = dialog->findChild<QComboBox *>(u"cboCols"_s);
        auto *value = dialog->findChild<QComboBox *>(u"cboValues"_s);
        person.expect("Please select a Column.").kind(prompts::Kind::Warning);
        clickButton(dialog, u"OKButton"_s);
        column->setCurrentText(u"Priority"_s);
        EXPECT_TRUE(items(value).contains(u"Critical"_s));
        value->setCurrentText(u"Critical"_s);
        column->setCurrentText(u"Status"_s); // its own values, none of them chosen
        EXPECT_TRUE(items(value).contains(u"Closed"_s));
        EXPECT_FALSE(items(value).contains(u"Critical"_s));
        person.expect("Please select Value.").kind(prompts::Kind::Warning);
        clickButton(dialog, u"OKButton"_s);
        EXPECT_TRUE(dialog->isVisible());
        value->setCurrentText(u"Closed"_s);
        clickButton(dialog, u"OKButton"_s);
    });
    click("cmdAddFilter");
    EXPECT_EQ(criteria(), QStringList(u"Status = 'Closed' [401]"_s));
    EXPECT_EQ(form->focusWidget(), find<QListWidget>("lstFilters"));
    discard();
}

// What cannot be shown is not made up; what can be kept is kept.
TEST_F(ReportDefinitionForm, DamagedAndOldDefinitionsOpen)
{
    openForEdit(addReport(u"Old"_s, QString(Prospects).replace(u'~', QChar(254))));
    EXPECT_EQ(columns().size(), 2);
    click("OKButton");
    EXPECT_EQ(stored("def"), Prospects);

    openForEdit(addReport(u"Odd"_s, u"0\n105~99999\n201~99998~202\n#~=~=\n10~99997~x\n1\n1"_s));
    EXPECT_EQ(columns(), (QStringList{"Last Name", "Unknown column [99999]"}));
    EXPECT_EQ(criteria(), (QStringList{"Category # 'Prospect' [10]", " = '' [99997]"}));
    click("OKButton");
    EXPECT_EQ(stored("def"), "0\n105~99999\n201~99998\n#~=\n10~99997\n1\n1");

    openForEdit(addReport(u"Empty"_s, {}, u"Z"_s));
    EXPECT_TRUE(columns().isEmpty() && criteria().isEmpty() && isOn("optOrientation_0"));
    EXPECT_EQ(find<QLabel>("lblType")->text(), "Unknown");
    discard();
}

TEST_F(ReportDefinitionForm, ColumnsGoByTheNamesOfTheDatabase)
{
    ASSERT_TRUE(gDB.SetParamValue(u"nvncust.dbf_city"_s, u"Town & Area:"_s));
    openForEdit(addReport(u"Towns"_s, u"0\n111\n\n\n\n1\n1"_s));
    EXPECT_EQ(columns(), QStringList(u"Town & Area"_s));
    select("lstColumns", 0);
    click("cmdDelDispCol");
    EXPECT_EQ(offered("cmdDisplayCols").count(u"Town & Area"_s), 1);
    discard();
}

TEST_F(ReportDefinitionForm, DeletingAsksByTitleAndTellsTheList)
{
    const qint32 id = addReport(u"Prospects"_s, Prospects);
    openForEdit(id);
    person.expect("Are you sure you want to *DELETE*  'Prospects'?", Answer::Cancel)
        .title(u"DELETE Confirmation"_s)
        .preset(Answer::Cancel);
    click("cmdDelete");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());
    person.expect("Are you sure you want to *DELETE*  'Prospects'?", Answer::Yes);
    click("cmdDelete");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(stored("title", id).isNull());
    EXPECT_EQ(board.calls(), QStringList(u"NotifyReportList %1"_s.arg(id)));
}

TEST_F(ReportDefinitionForm, WhoMayNotEditReportsMayLookAtThem)
{
    const qint32 id = addReport(u"Prospects"_s, Prospects);
    database.addUser(u"jane"_s, u"1110111"_s);
    database.loginAs(u"jane"_s, u"jane"_s);
    open(std::make_unique<frmReportDef>(), id, false);
    EXPECT_EQ(columns().size(), 2);
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
}
