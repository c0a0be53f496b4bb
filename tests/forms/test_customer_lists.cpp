// The products, services and issues on a customer's window.
#include "CustomerFixture.h"

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"
#include "support/PdfPrinter.h"

#include <QHeaderView>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace
{

class CustomerLists : public CustomerForm
{
protected:
    enum Page { Contact, Notes, Products, Issues };

    ListView *list(const char *name) const { return find<ListView>(name); }
    QStringList column(const char *name, int at) const
    {
        QStringList texts;
        for (int row = 0; row < list(name)->itemCount(); ++row)
            texts.append(list(name)->itemText(row, at));
        return texts;
    }
    QStringList row(const char *name, int at) const
    {
        QStringList texts;
        for (int one = 0; one < list(name)->columns().size(); ++one)
            texts.append(list(name)->itemText(at, one));
        return texts;
    }
    qint32 addPS(qint32 psid, const QString &text, const QString &from = {}, const QString &to = {})
    {
        return database.addSubscription({{"custid", customer},
                                         {"psid", psid},
                                         {"shortdesc", text},
                                         {"dateinit", from},
                                         {"dateterm", to}});
    }
    qint32 addIssue(const QString &text, const QString &submitted)
    {
        return database.addIssue({{"custid", customer},
                                  {"psid", printer},
                                  {"status", status},
                                  {"shortdesc", text},
                                  {"submitdt", submitted}});
    }
    void clickHeading(const char *name, int at)
    {
        QHeaderView *heading = list(name)->header();
        const int x = heading->sectionViewportPosition(at) + heading->sectionSize(at) / 2;
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, {x, heading->height() / 2});
    }

    const qint32 printer = database.addListItem(2, "Printer");
    const qint32 camera = database.addListItem(2, "Camera");
    const qint32 status = database.addListItem(101, "Waiting");
    const qint32 customer = database.addCustomer({{"company", "Acme"}});
    const qint32 other = database.addCustomer({{"company", "Other"}});
};

} // namespace

TEST_F(CustomerLists, TellWhatTheCustomerHolds)
{
    addPS(printer, " Laser ", "20040201", "20040313");
    addPS(camera, "Front door", "20040201", "20040314"); // ends today
    addPS(-1, "Nobody knows");
    database.addSubscription({{"custid", other}, {"psid", printer}});
    gDB.SetParamValue(clsDB::MakeCustomFieldParamName("nvncust_ps.dbf", "dateterm"), "Ends");
    open(customer);
    showPage(Products);
    EXPECT_EQ(find<QLabel>("lblPS")->text(), "3 products/services");
    EXPECT_EQ(column("lvPS", 0), (QStringList{"", "Camera", "Printer"}));
    EXPECT_EQ(row("lvPS", 1),
              (QStringList{"Camera", "Front door", "2/1/2004", "3/14/2004", "Yes"}));
    EXPECT_EQ(row("lvPS", 2), (QStringList{"Printer", "Laser", "2/1/2004", "3/13/2004", "NO"}));
    EXPECT_EQ(row("lvPS", 0).last(), "Yes");
    EXPECT_EQ(list("lvPS")->columns()[3].title, "Ends");
    EXPECT_EQ(LvGetSelectedItemText(list("lvPS")), "");
}

TEST_F(CustomerLists, TellWhatTheCustomerRaised)
{
    const qint32 first = addIssue("Paper jam", "20040210");
    addIssue("No toner", "20031201");
    addIssue("No date", "");
    database.addIssue({{"custid", other}});
    open(customer);
    showPage(Issues);
    EXPECT_EQ(find<QLabel>("lblIssues")->text(), "3 issues");
    EXPECT_EQ(row("lvIssues", 0), (QStringList{u"  %1"_s.arg(first), "Waiting", "Paper jam",
                                               "Printer", "2/10/2004", "20040210"}));
    EXPECT_TRUE(list("lvIssues")->isColumnHidden(5));

    clickHeading("lvIssues", 4); // turned round, and by the date itself
    EXPECT_EQ(column("lvIssues", 2), (QStringList{"Paper jam", "No toner", "No date"}));
    clickHeading("lvIssues", 4);
    EXPECT_EQ(column("lvIssues", 2), (QStringList{"No date", "No toner", "Paper jam"}));
    clickHeading("lvIssues", 2);
    EXPECT_EQ(column("lvIssues", 2), (QStringList{"Paper jam", "No toner", "No date"}));
}

TEST_F(CustomerLists, OpenAndBeginSubscriptions)
{
    open(customer);
    showPage(Products);
    EXPECT_EQ(column("lvPS", 0), QStringList());
    person.expect("No Product/Service is currently selected. Please make a selection first.")
        .kind(prompts::Kind::Warning);
    click("cmdPropertiesPS");
    click("cmdNewPS");
    EXPECT_EQ(board.calls(), QStringList(u"ShowPS -1 %1 true"_s.arg(customer)));

    const qint32 a = addPS(camera, "a");
    const qint32 b = addPS(printer, "b");
    form->LV_LoadPS(b); // as the window of the new one has it notified
    EXPECT_EQ(LvGetSelectedItemKey(list("lvPS")), u"N%1"_s.arg(b));
    EXPECT_EQ(find<QLabel>("lblPS")->text(), "2 products/services");
    board.forget();
    click("cmdPropertiesPS");
    list("lvPS")->setFocus();
    QTest::keyClick(list("lvPS"), Qt::Key_Return);
    const QString opened = u"ShowPS %1 %2 false"_s.arg(b).arg(customer);
    EXPECT_EQ(board.calls(), (QStringList{opened, opened}));

    ASSERT_TRUE(LvSelectItemByText(list("lvPS"), "Printer"));
    ASSERT_TRUE(gDB.DeleteRecord(b, gDB.Customers2PSTable()));
    form->LV_LoadPS(-1);
    EXPECT_EQ(LvGetSelectedItemKey(list("lvPS")), u"N%1"_s.arg(a)); // the first one
    addPS(camera, "before");
    form->LV_LoadPS(-1);
    EXPECT_EQ(LvGetSelectedItemKey(list("lvPS")), u"N%1"_s.arg(a)); // what was selected

    database.addUser("jane", "1011");
    database.loginAs("jane", "jane");
    board.forget();
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("cmdNewPS");
    EXPECT_EQ(board.calls(), QStringList());
}

TEST_F(CustomerLists, OpenAndBeginIssues)
{
    open(customer);
    showPage(Issues);
    person.expect("No Issue is currently selected. Please make a selection first.")
        .kind(prompts::Kind::Warning);
    click("cmdPropertiesIssues");
    click("cmdNewIssue"); // without templates at once
    EXPECT_EQ(board.calls(), QStringList(u"ShowIssue -1 %1 true -1"_s.arg(customer)));

    const qint32 id = addIssue("a", "20040301");
    form->LV_LoadIssues(id);
    board.forget();
    click("cmdPropertiesIssues");
    list("lvIssues")->setFocus();
    QTest::keyClick(list("lvIssues"), Qt::Key_Return);
    const QString opened = u"ShowIssue %1 %2 false -1"_s.arg(id).arg(customer);
    EXPECT_EQ(board.calls(), (QStringList{opened, opened}));

    ASSERT_TRUE(gDB.SetParamValue("ENABLE_ISSUE_TEMPLATES", "1"));
    board.forget();
    click("cmdNewIssue"); // the choice is cancelled
    EXPECT_EQ(board.calls(), QStringList("GetIssueTemplateID"));
    board.chosenTemplate = 7;
    click("cmdNewIssue");
    EXPECT_EQ(board.calls().last(), u"ShowIssue -1 %1 true 7"_s.arg(customer));

    database.addUser("jane", "1101");
    database.loginAs("jane", "jane");
    board.forget();
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("cmdNewIssue");
    EXPECT_EQ(board.calls(), QStringList());
}

TEST_F(CustomerLists, AreForAStoredCustomerThatIsNotBeingEdited)
{
    openNew();
    for (const int page : {Products, Issues})
        EXPECT_FALSE(find<QTabWidget>("tabs")->isTabEnabled(page));
    type("txtCoName", "New");
    click("cmdApply");
    for (const int page : {Products, Issues}) {
        EXPECT_TRUE(find<QTabWidget>("tabs")->isTabEnabled(page));
        showPage(page);
        EXPECT_FALSE(find<QWidget>("EM")->isVisible());
        EXPECT_FALSE(find<QWidget>("lblEdit")->isVisible());
        EXPECT_FALSE(find<QPushButton>("cmdEmail")->isEnabled());
        QTest::keyClick(list("lvPS"), Qt::Key_E, Qt::ControlModifier);
        EXPECT_FALSE(form->inEditMode());
        click("cmdRefresh");
        EXPECT_FALSE(find<QWidget>("lblEdit")->isVisible());
    }
    showPage(Notes);
    EXPECT_TRUE(find<QWidget>("EM")->isVisible());
    EXPECT_TRUE(find<QPushButton>("cmdEmail")->isEnabled());
    click("lblEdit");
    for (const int page : {Products, Issues})
        EXPECT_FALSE(find<QTabWidget>("tabs")->isTabEnabled(page));
    EXPECT_EQ(find<QTabWidget>("tabs")->currentIndex(), Notes);
    showPage(Contact);
    click("cmdApply");

    showPage(Issues); // an edit that begins there goes to the record's own page
    form->DoEditModeBtn();
    EXPECT_EQ(find<QTabWidget>("tabs")->currentIndex(), Contact);
    EXPECT_TRUE(find<QWidget>("lblEdit")->isVisible());
    discard();
}

TEST_F(CustomerLists, ThePageDecidesWhatIsPrinted)
{
    addPS(printer, "Laser");
    addIssue("Paper jam", "20040210");
    open(customer);
    PdfPrinter printed;
    const std::tuple<int, const char *, QString, QString> pages[] = {
        {Products, "cmdPrintPS", "Product/Services List for Acme", "Laser"},
        {Issues, "cmdPrintIssues", "Issue List for Acme", "Paper jam"}};
    for (const auto &[page, button, title, text] : pages) {
        showPage(page);
        for (const char *command : {button, "cmdPrint"}) {
            click(command);
            const QString paper = printed.pages().join(u' ');
            EXPECT_TRUE(paper.contains(title)) << command << qPrintable(paper);
            EXPECT_TRUE(paper.contains(text)) << command << qPrintable(paper);
        }
    }
    EXPECT_EQ(board.children().size(), 0);
    showPage(Contact);
    click("cmdPrint");
    EXPECT_EQ(board.children().size(), 1);
}
