// A subscription: what its fields hold, which faults are told, and how it reads as text.
#include "PSFixture.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace
{

const QString kFaults = QStringLiteral("Please correct the following data entry fields:\n\n");

} // namespace

TEST_F(PSForm, EveryFieldIsStoredAndShownAgain)
{
    const qint32 rental = database.addListItem(103, "Lent for a fee");
    const qint32 year = database.addListItem(104, "One year and a day");
    openNew();
    EXPECT_EQ(textOf("txtDateInitiated"), "3/14/2004"); // today
    choose("cboPS", "Printer");
    choose("cboContractType", "Lent for a fee");
    choose("cboContractDuration", "One year and a day");
    type("txtShortDesc", "Laser, second floor");
    type("txtContractNumber", "C-77");
    type("txtTrackNo", "0815");
    type("txtDateInitiated", "2/1/04");
    type("txtDateTerminated", "2005-02-28");
    find<QPlainTextEdit>("txtNote")->setPlainText("one\ntwo");
    find<QComboBox>("txtCust1")->setEditText("red");
    find<QComboBox>("txtCust2")->setEditText("blue");
    click("OKButton");

    const std::pair<const char *, QString> expected[] = {{"custid", QString::number(customer)},
                                                         {"psid", QString::number(printer)},
                                                         {"conttype", QString::number(rental)},
                                                         {"contdur", QString::number(year)},
                                                         {"shortdesc", "Laser, second floor"},
                                                         {"contno", "C-77"},
                                                         {"trackno", "0815"},
                                                         {"dateinit", "20040201"},
                                                         {"dateterm", "20050228"},
                                                         {"notes", "one\r\ntwo"},
                                                         {"custom1", "red"},
                                                         {"custom2", "blue"}};
    for (const auto &[field, value] : expected)
        EXPECT_EQ(stored(1000, field), value) << field;

    open(1000);
    EXPECT_EQ(find<QComboBox>("cboPS")->currentText(), "Printer");
    EXPECT_EQ(find<QComboBox>("cboContractDuration")->currentText(), "One year and a day");
    EXPECT_EQ(textOf("txtDateInitiated"), "2/1/2004");
    EXPECT_EQ(textOf("txtDateTerminated"), "2/28/2005");
    EXPECT_EQ(find<QLabel>("lblCustomer")->text(), "Acme");
    EXPECT_EQ(find<QPlainTextEdit>("txtNote")->toPlainText(), "one\ntwo");
}

TEST_F(PSForm, AllFaultsAreToldAtOnceAndTheTextsStay)
{
    openNew();
    type("txtDateInitiated", "soon");
    type("txtDateTerminated", "13/45/2004");
    person.expectText(kFaults + "  - PRODUCT/SERVICE must be selected.\n\n"
                                "  - DATE INITIATED is not a valid date.\n\n"
                                "  - DATE TERMINATED is not a valid date.\n\n");
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(textOf("txtDateInitiated"), "soon");

    choose("cboPS", "Printer");
    type("txtDateTerminated", "3/1/2004"); // no order without two dates
    person.expectText(kFaults + "  - DATE INITIATED is not a valid date.\n\n");
    click("cmdApply");
    type("txtDateInitiated", "3/2/2004");
    person.expectText(kFaults + "  - DATE TERMINATED cannot be before DATE INITIATED.\n\n");
    click("cmdApply");
    type("txtDateInitiated", "3/1/2004"); // the same day is no fault
    click("cmdApply");
    EXPECT_EQ(stored(1000, "dateterm"), "20040301");

    click("lblEdit");
    type("txtDateInitiated", "");
    type("txtDateTerminated", "  ");
    click("cmdApply");
    EXPECT_EQ(stored(1000, "dateinit"), "");
    EXPECT_EQ(stored(1000, "dateterm"), "");
}

TEST_F(PSForm, AContractThatEndsTodayIsActive)
{
    const std::pair<const char *, const char *> ends[] = {{"20040314", "Active: YES"},
                                                          {"20040313", "Active: NO"},
                                                          {"20040315", "Active: YES"},
                                                          {"", "Active: YES"}};
    for (const auto &[date, shown] : ends) {
        open(addPS({{"custid", customer}, {"psid", printer}, {"dateterm", QString(date)}}));
        EXPECT_EQ(find<QLabel>("lblActive")->text(), shown) << date;
        EXPECT_TRUE(find<QLabel>("lblActive")->isVisible());
    }
    click("lblEdit");
    EXPECT_FALSE(find<QLabel>("lblActive")->isVisible());
    type("txtDateTerminated", "3/1/2004");
    click("cmdApply");
    EXPECT_EQ(find<QLabel>("lblActive")->text(), "Active: NO");
}

TEST_F(PSForm, TheCaptionTellsProductDescriptionAndTime)
{
    struct {
        QVariant psid;
        QString text, caption;
    } const cases[] = {
        {printer, "", "Product/Service: Printer @3:05:09 PM"},
        {printer, "Laser, second floor",
         "Product/Service: Printer - Laser, second f... @3:05:09 PM"},
        {printer, "Laser", "Product/Service: Printer - Laser... @3:05:09 PM"},
        {-1, "Laser, second floor", "Product/Service: Laser, second f... @3:05:09 PM"},
        {-1, "", "Product/Service: New @3:05:09 PM"}};
    for (const auto &[psid, text, caption] : cases) {
        open(addPS({{"custid", customer}, {"psid", psid}, {"shortdesc", text}}));
        EXPECT_EQ(form->windowTitle(), caption);
    }
}

TEST_F(PSForm, ReadsAsText)
{
    gDB.SetParamValue(clsDB::MakeCustomFieldParamName("nvncust_ps.dbf", "trackno"),
                      "Serial number of the whole machine");
    openForEdit(addPS({{"custid", customer},
                       {"psid", printer},
                       {"shortdesc", "Laser"},
                       {"trackno", "0815"},
                       {"dateinit", "20040201"},
                       {"dateterm", "20040313"},
                       {"notes", "one\r\ntwo"},
                       {"custom2", "blue"}}));
    click("cmdApply");
    EXPECT_EQ(form->FormContent(), "PRODUCT/SERVICE DETAILS\n\n"
                                   "Customer Name:              Acme\n"
                                   "Product/Service:            Printer\n"
                                   "Short Description:          Laser\n"
                                   "Contract or Part Number:    \n"
                                   "Serial number of the whole m0815\n"
                                   "Contract Type:              \n"
                                   "Contract Duration:          \n"
                                   "Date Initiated:             2/1/2004\n"
                                   "Date Terminated:            3/13/2004 (Active: NO) \n\n"
                                   "Custom 1:                   \n"
                                   "Custom 2:                   blue\n\n"
                                   "Notes:\none\ntwo\n"
                                   "Last Modified By:           " +
                                       gDB.LoginName() +
                                       "\n"
                                       "Last Modified On:           Sunday, March 14, 2004\n"
                                       "Last Modified At:           3:05:09 PM\n");
    click("cmdPrint");
    ASSERT_EQ(board.children().size(), 1);
    EXPECT_EQ(board.children()[0]->windowTitle(), form->windowTitle());
    click("cmdEmail");
    ASSERT_EQ(board.mails().size(), 1);
    EXPECT_EQ(board.mails()[0].to, "ann@acme.example-removethis");
    EXPECT_EQ(board.mails()[0].subject, "<<Verify Email Address and Enter Subject>>");
    EXPECT_EQ(board.mails()[0].body, form->FormContent());
}

TEST_F(PSForm, TheButtonsBesideTheFieldsServeThem)
{
    openNew();
    choose("cboPS", "Printer");
    find<QComboBox>("txtCust1")->setEditText("typed");
    board.onEditCategory = [this](qint32 type) {
        database.addListItem(type, u"Added to %1"_s.arg(type));
    };
    const std::tuple<const char *, const char *, int> lists[] = {
        {"cmdCatPS", "cboPS", 2},
        {"cmdCatContractType", "cboContractType", 103},
        {"cmdCatContractDuration", "cboContractDuration", 104},
        {"cmdCust1Cat", "txtCust1", 204},
        {"cmdCust2Cat", "txtCust2", 205}};
    for (const auto &[button, combo, type] : lists) {
        click(button);
        EXPECT_EQ(board.calls().last(), u"EditCategory %1"_s.arg(type));
        EXPECT_GE(find<QComboBox>(combo)->findText(u"Added to %1"_s.arg(type)), 0) << combo;
        EXPECT_TRUE(find<QComboBox>(combo)->hasFocus()) << combo;
    }
    EXPECT_EQ(find<QComboBox>("cboPS")->currentText(), "Printer");
    EXPECT_EQ(find<QComboBox>("txtCust1")->currentText(), "typed");

    board.pickedDate = "5/6/2004";
    click("cmdCalendar_1");
    EXPECT_EQ(board.calls().last(), "GetShortDateFromPopupCalendar ");
    EXPECT_EQ(textOf("txtDateTerminated"), "5/6/2004");
    EXPECT_TRUE(find<QLineEdit>("txtDateTerminated")->hasFocus());
    board.pickedDate.clear(); // Cancel
    click("cmdCalendar_0");
    EXPECT_EQ(board.calls().last(), "GetShortDateFromPopupCalendar 3/14/2004");
    EXPECT_EQ(textOf("txtDateInitiated"), "3/14/2004");

    board.forget();
    QTest::mouseDClick(find<QLabel>("lblCustomer"), Qt::LeftButton);
    click("cmdCustomer");
    const QString opened = u"ShowCustomer %1 false"_s.arg(customer);
    EXPECT_EQ(board.calls(), (QStringList{opened, opened}));
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(board.calls().last(), "showHelp 1320");

    showPage(1);
    EXPECT_TRUE(find<QPlainTextEdit>("txtNote")->hasFocus());
    find<QPlainTextEdit>("txtNote")->setPlainText("abc");
    find<QPlainTextEdit>("txtNote")->selectAll();
    click("cmdDTStamp_Notes");
    EXPECT_EQ(find<QPlainTextEdit>("txtNote")->toPlainText(),
              u"3/14/2004 @ 3:05:09 PM by "_s + gDB.LoginName());
    discard();
}

TEST_F(PSForm, ReadOnlyLocksAllThatChangesTheRecord)
{
    open(addPS({{"custid", customer}, {"psid", printer}, {"dateinit", "20040201"}}));
    QStringList open;
    for (const QWidget *control : form->findChildren<QWidget *>()) {
        const bool button = qobject_cast<const QToolButton *>(control) != nullptr &&
                            control->objectName().startsWith("cmd");
        const bool box = qobject_cast<const QComboBox *>(control) != nullptr;
        const auto *text = qobject_cast<const QLineEdit *>(control);
        const auto *memo = qobject_cast<const QPlainTextEdit *>(control);
        if (((button || box) && control->isEnabled()) || (memo != nullptr && !memo->isReadOnly()) ||
            (text != nullptr && !text->isReadOnly() && text->parentWidget()->isEnabled()))
            open.append(control->objectName());
    }
    EXPECT_EQ(open, QStringList("cmdCustomer"));
    for (const char *button : {"OKButton", "cmdApply", "cmdDelete", "cmdDTStamp_Notes"})
        EXPECT_FALSE(find<QPushButton>(button)->isEnabled()) << button;
    for (const char *button : {"CancelButton", "cmdPrint", "cmdEmail", "cmdRefresh", "lblEdit"})
        EXPECT_TRUE(find<QPushButton>(button)->isEnabled()) << button;
    const QSize least = form->minimumSizeHint();
    EXPECT_LE(least.width(), 1000);
    EXPECT_LE(least.height(), 540);
}
