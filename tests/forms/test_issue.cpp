// An issue's window: what a new one starts with, what it refuses, how it is called and kept.
#include "IssueFixture.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>

namespace
{

// As a name comes before its login in the list of users.
const QString Myself = QStringLiteral("sysop");

} // namespace

TEST_F(IssueForm, ANewIssueHasItsDefaultsAndBecomesARecordWithApply)
{
    openNew();
    EXPECT_EQ(form->tagText(), "I-1");
    EXPECT_EQ(form->windowTitle(), "Issue: New @3:05:09 PM");
    EXPECT_EQ(find<QLabel>("lblCustomer")->text(), "Acme (Smith, Ann)");
    EXPECT_EQ(textOf("txtDateSubmit"), "3/14/2004");
    EXPECT_EQ(textOf("txtDateResponse"), "");
    EXPECT_EQ(chosen("cboPriority"), "Normal");
    EXPECT_EQ(chosen("cboStatus"), "Open");
    EXPECT_TRUE(chosen("cboAssignedTo").contains(Myself, Qt::CaseInsensitive));
    EXPECT_EQ(chosen("cboPS"), "");
    EXPECT_EQ(find<QLabel>("lblIssueNumber")->text(), "");
    EXPECT_TRUE(find<QLabel>("lblNewIssue")->isVisible());
    EXPECT_TRUE(find<QComboBox>("cboPS")->hasFocus());
    auto *tabs = find<QTabWidget>("tabs");
    EXPECT_FALSE(tabs->isTabEnabled(1));
    EXPECT_FALSE(tabs->isTabEnabled(4));

    choose("cboPS", "Printer");
    type("txtShortDesc", "Paper jam at work");
    type("txtDateResponse", "2004-03-15");
    showPage(2);
    auto *desc = find<QPlainTextEdit>("txtDesc");
    EXPECT_TRUE(desc->hasFocus());
    desc->setPlainText("old");
    desc->selectAll();
    click("cmdDTStamp_Desc");
    EXPECT_EQ(desc->toPlainText(), "3/14/2004 @ 3:05:09 PM by " + gDB.LoginName());
    click("cmdApply");

    EXPECT_EQ(form->tagText(), "I1000");
    EXPECT_EQ(form->windowTitle(), "Issue: Printer - Paper jam at wo... @3:05:09 PM");
    EXPECT_EQ(find<QLabel>("lblIssueNumber")->text(), "Issue ID: 1000");
    EXPECT_TRUE(tabs->isTabEnabled(1));
    EXPECT_TRUE(tabs->isTabEnabled(4));
    EXPECT_TRUE(board.calls().contains(QStringLiteral("NotifyCustomer %1 1 1000").arg(customer)));
    EXPECT_EQ(stored(1000, "custid"), QString::number(customer));
    EXPECT_EQ(stored(1000, "psid"), QString::number(product));
    EXPECT_EQ(stored(1000, "shortdesc"), "Paper jam at work");
    EXPECT_EQ(stored(1000, "priority"), "451");
    EXPECT_EQ(stored(1000, "status"), "400");
    EXPECT_EQ(stored(1000, "assignedto"), QString::number(gDB.LoginID()));
    EXPECT_EQ(stored(1000, "submitdt"), "20040314");
    EXPECT_EQ(stored(1000, "responsedt"), "20040315");
    EXPECT_EQ(stored(1000, "resolvedt"), "");
    EXPECT_EQ(stored(1000, "desc"), desc->toPlainText());
    EXPECT_EQ(textOf("txtModifiedAt"), "3:05:09 PM");
}

TEST_F(IssueForm, AListThatLostItsStandardEntriesLeavesThemOpen)
{
    ASSERT_TRUE(gDB.DeleteRecord(451, gDB.CategoryTable()));
    ASSERT_TRUE(gDB.DeleteRecord(400, gDB.CategoryTable()));
    openNew();
    EXPECT_EQ(chosen("cboPriority"), "");
    EXPECT_EQ(chosen("cboStatus"), "");
    discard();
}

TEST_F(IssueForm, EveryFaultIsToldInOneMessage)
{
    openNew();
    type("txtDateSubmit", "soon");
    type("txtDateResponse", "13/45/2004");
    type("txtDateResolution", "x");
    person.expectText("Please correct the following data entry fields:\n\n"
                      "  - PRODUCT/SERVICE must be selected.\n\n"
                      "  - SHORT DESCRIPTION must be entered.\n\n"
                      "  - SUBMIT DATE is not a valid date.\n\n"
                      "  - RESPONSE DATE is not a valid date.\n\n"
                      "  - RESOLUTION DATE is not a valid date.\n\n");
    click("OKButton");
    EXPECT_TRUE(form->isVisible() && form->inEditMode());

    // Empty dates pass, nobody need be assigned, and dates are not compared.
    choose("cboPS", "Printer");
    type("txtShortDesc", "x");
    type("txtDateSubmit", "3/14/2004");
    type("txtDateResponse", "  ");
    type("txtDateResolution", "1/1/1999");
    find<QComboBox>("cboAssignedTo")->setCurrentIndex(0);
    find<QComboBox>("cboStatus")->setCurrentIndex(0);
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stored(1000, "resolvedt"), "19990101");
    EXPECT_LT(stored(1000, "assignedto").toInt(), 1);
}

TEST_F(IssueForm, TheCaptionCutsOnlyTheShortDescriptionAndAlwaysAddsDots)
{
    open(addIssue(QStringLiteral("Exactly fifteen")));
    EXPECT_EQ(form->windowTitle(), "Issue: Printer - Exactly fifteen... @3:05:09 PM");
    open(database.addIssue({{"custid", customer}, {"shortdesc", "No product"}}));
    EXPECT_EQ(form->windowTitle(), "Issue: No product... @3:05:09 PM");
    open(database.addIssue({{"custid", customer}, {"psid", product}}));
    EXPECT_EQ(form->windowTitle(), "Issue: Printer @3:05:09 PM");
}

TEST_F(IssueForm, ReadOnlyLocksEveryFieldButNothingThatOnlyShows)
{
    const qint32 id = addIssue(QStringLiteral("x"));
    addAction({{"issueid", id}, {"date", "20040302"}, {"action", 530}});
    open(id);
    for (const char *box :
         {"txtShortDesc", "txtDateSubmit", "txtDateResponse", "txtDateResolution"})
        EXPECT_TRUE(find<QLineEdit>(box)->isReadOnly()) << box;
    for (const char *memo : {"txtDesc", "txtResolution"})
        EXPECT_TRUE(find<QPlainTextEdit>(memo)->isReadOnly()) << memo;
    for (const char *control : {"cboPS",
                                "cboAssignedTo",
                                "cboPriority",
                                "cboStatus",
                                "cboIssueCategory",
                                "txtCust1",
                                "txtCust2",
                                "cmdCatPS",
                                "cmdCatStatus",
                                "cmdCatPriority",
                                "cmdCatIssueCategory",
                                "cmdCust1Cat",
                                "cmdCust2Cat",
                                "cmdCalendar_0",
                                "cmdDTStamp_Desc",
                                "cmdDTStamp_Resolution",
                                "OKButton",
                                "cmdApply",
                                "cmdDelete",
                                "cmdAdd",
                                "cmdDel"})
        EXPECT_FALSE(find<QWidget>(control)->isEnabled()) << control;
    for (const char *control :
         {"cmdCustomer", "cmdEditView", "cmdPrint", "cmdEmail", "cmdRefresh", "CancelButton"})
        EXPECT_TRUE(find<QWidget>(control)->isEnabled()) << control;
}

TEST_F(IssueForm, TheCustomerOpensFromHereAndDatesComeFromTheCalendar)
{
    openForEdit(addIssue(QStringLiteral("x")));
    QTest::mouseDClick(find<QLabel>("lblCustomer"), Qt::LeftButton);
    click("cmdCustomer");
    const QString shown = QStringLiteral("ShowCustomer %1 false").arg(customer);
    EXPECT_EQ(board.calls().filter(shown).size(), 2);

    board.pickedDate = QStringLiteral("4/1/2004");
    click("cmdCalendar_2");
    EXPECT_EQ(textOf("txtDateResolution"), "4/1/2004");
    EXPECT_TRUE(find<QLineEdit>("txtDateResolution")->hasFocus());
    board.pickedDate.clear(); // cancelled
    click("cmdCalendar_0");
    EXPECT_EQ(board.calls().last(), "GetShortDateFromPopupCalendar 3/1/2004");
    EXPECT_EQ(textOf("txtDateSubmit"), "3/1/2004");
    discard();
}

TEST_F(IssueForm, EachListButtonOpensItsListAndComesBackWithTheChoice)
{
    openForEdit(addIssue(QStringLiteral("x")));
    choose("cboStatus", "Pending");
    find<QComboBox>("txtCust1")->setEditText("typed");
    board.forget();
    board.onEditCategory = [this](qint32 type) {
        if (type == 101)
            database.addListItem(101, QStringLiteral("Abandoned"));
    };
    const std::pair<const char *, int> lists[] = {
        {"cmdCatPS", 2},         {"cmdCatStatus", 101},
        {"cmdCatPriority", 102}, {"cmdCatIssueCategory", 105},
        {"cmdCust1Cat", 202},    {"cmdCust2Cat", 203}};
    for (const auto &[button, type] : lists) {
        click(button);
        EXPECT_EQ(board.calls().last(), QStringLiteral("EditCategory %1").arg(type)) << button;
    }
    EXPECT_EQ(chosen("cboStatus"), "Pending");
    EXPECT_GE(find<QComboBox>("cboStatus")->findText("Abandoned"), 0);
    EXPECT_EQ(chosen("txtCust1"), "typed");
    discard();
}

TEST_F(IssueForm, PreviewAndMailShowTheWholeIssue)
{
    database.addUser(QStringLiteral("jane"), QStringLiteral("1111"));
    const qint32 id = database.addIssue({{"custid", customer},
                                         {"psid", product},
                                         {"shortdesc", "Jam"},
                                         {"status", 402},
                                         {"priority", 450},
                                         {"assignedto", gDB.GetLoginID(QStringLiteral("jane"))},
                                         {"submitdt", "20040301"},
                                         {"custom1", "red"},
                                         {"custom2", "blue"},
                                         {"issuecat", 505},
                                         {"desc", "It\r\njams"},
                                         {"resolution", "Oiled"}});
    addAction({{"issueid", id},
               {"date", "20040302"},
               {"action", 530},
               {"desc", "Called"},
               {"duration", "1.5"},
               {"notes", "She was out"}});
    ASSERT_TRUE(
        gDB.SetParamValue(QStringLiteral("nvnissues.dbf_custom1"), QStringLiteral("Colour")));
    open(id);
    const QString rule = QString(80, u'-') + u'\n';
    const QString content = form->FormContent();
    EXPECT_TRUE(content.startsWith("ISSUE DETAILS (Issue ID: 1000)\n\n"
                                   "Customer Name:      Acme (Smith, Ann)\n"
                                   "Short Description:  Jam\n"
                                   "Product/Service:    Printer\n"
                                   "Status:             Pending\n"
                                   "Priority:           High\n"
                                   "Assigned To::       jane\n"
                                   "Submit Date:        3/1/2004\n"
                                   "Response Date:      \n"
                                   "Resolution Date:    \n"
                                   "Colour:             red\n"
                                   "Custom 2:           blue\n"
                                   "Category:           Repair\n" +
                                   rule))
        << qPrintable(content);
    EXPECT_TRUE(content.contains("\n\n=== 3/2/2004 ===\nShe was out\n" + rule +
                                 "Description:\nIt\njams\n" + rule + "Resolution:\nOiled\n" + rule +
                                 "Last Modified By:   "))
        << qPrintable(content);
    EXPECT_TRUE(content.contains("Called"));

    click("cmdEmail");
    EXPECT_EQ(board.mails().last().to, "-removethis");
    EXPECT_EQ(board.mails().last().body, content);
    click("cmdPrint");
    EXPECT_EQ(board.children().last()->windowTitle(), form->windowTitle());
}
