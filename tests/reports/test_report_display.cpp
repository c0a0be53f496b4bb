// The window of a saved report: what it shows, in which order, and what its commands do.
#include "ReportFixture.h"

#include "common/base/clsSystem.h"
#include "common/ui/frmFind.h"

#include <QAbstractButton>
#include <QLineEdit>

namespace
{

// Columns of the catalogue.
const QString LastNameCityState = u"105~111~112"_s;

class ReportDisplay : public ReportFixture
{
protected:
    void find(const QString &text, bool whole = false, bool matchCase = false, bool up = false)
    {
        form->Find(text, whole, matchCase, up);
    }
};

} // namespace

TEST_F(ReportDisplay, ComesInTheOrderOfItsFirstColumnWithNumberedRows)
{
    addFour();
    const qint32 report = addReport(definition(LastNameCityState), QString(31, u'x'));
    open(report);
    EXPECT_EQ(form->windowTitle(), "Customers Report: " + QString(30, u'x') + "... @3:05:09 PM");
    EXPECT_EQ(form->tagText(), "REPORTDISPLAY" + QString::number(report));
    EXPECT_EQ(count->text(), "4 rows");
    EXPECT_EQ(column(0), QStringList({"1", "2", "3", "4"}));
    EXPECT_EQ(column(1), QStringList({"Adler", "Berg", "caspar", "Dahl"}));
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_TRUE(grid->isColumnHidden(0)) << "the numbers stand at the side";
    EXPECT_TRUE(grid->verticalHeader()->isVisible());
    ASSERT_EQ(person.progress().size(), 1);
    EXPECT_EQ(person.progress()[0].title, "Preparing Report");
    EXPECT_EQ(person.progress()[0].message, "Please wait...");
    EXPECT_TRUE(person.progress()[0].cancel);
    EXPECT_TRUE(person.progress()[0].closed);

    open(definition(LastNameCityState, false));
    EXPECT_FALSE(grid->verticalHeader()->isVisible());
    EXPECT_EQ(column(0), QStringList({"Adler", "Berg", "caspar", "Dahl"}));
}

TEST_F(ReportDisplay, AHeadingSortsAscendingByItsKindAndNumbersTravel)
{
    const auto issue = [this](const char *text, const char *date) {
        return database.addIssue({{"custid", 1}, {"shortdesc", text}, {"submitdt", date}});
    };
    QList<qint32> issues;
    for (int i = 0; i < 11; ++i)
        issues.append(issue(i == 0   ? "Zebra"
                            : i == 1 ? "apple"
                                     : "Middle",
                            i == 3   ? "12/31/1999"
                            : i == 4 ? ""
                                     : "2/1/2004"));
    open(addReport(definition(u"304~301~309"_s), u"Work"_s, u"I"_s));
    EXPECT_EQ(form->windowTitle(), "Issues Report: Work @3:05:09 PM");
    EXPECT_EQ(column(1).first(), "apple");
    EXPECT_EQ(column(1).last(), "Zebra");

    clickHeading(2);
    EXPECT_EQ(column(2).first(), QString::number(issues.first())); // by value, not by digits
    EXPECT_EQ(column(2).last(), QString::number(issues.last()));
    EXPECT_EQ(column(0).first(), "11") << "Zebra was the last row";
    clickHeading(2);
    EXPECT_EQ(column(2).first(), QString::number(issues.first())) << "never the other way round";
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);

    clickHeading(3);
    EXPECT_EQ(column(3).mid(0, 3), QStringList({"", "12/31/1999", "2/1/2004"}));
    EXPECT_EQ(selectedRow(), 0);

    QTest::mouseClick(grid->corner(), Qt::LeftButton);
    EXPECT_EQ(column(0).first(), "1");
    EXPECT_EQ(column(0).last(), "11") << "row numbers sort by value too";
}

TEST_F(ReportDisplay, SuppressedValuesAreBlankAndCannotBeSorted)
{
    addFour();
    open(definition(u"111~105"_s, true, true));
    EXPECT_EQ(column(1), QStringList({"Aurora", "Bend", "salem", "Salem"})) << "not the same text";
    open(definition(u"112~105"_s, false, true)); // two have no state
    EXPECT_EQ(column(0), QStringList({"", "", "Oregon Territory", ""}));
    const QStringList names = column(1);
    for (const int heading : {0, 1}) {
        person
            .expect("This report cannot be re-sorted because the report definition 'Suppresses "
                    "repeating values' in the first column of the report!")
            .kind(prompts::Kind::Information)
            .title("Norvane")
            .helpContext(1400);
        clickHeading(heading);
    }
    EXPECT_EQ(column(1), names);
    EXPECT_EQ(grid->horizontalHeader()->sortIndicatorSection(), 0);
    open(definition(u"112"_s, false, true));
    EXPECT_EQ(column(0).count(u"Oregon Territory"_s), 2) << "a single column is left alone";
}

TEST_F(ReportDisplay, CancelKeepsWhatWasReachedInOrder)
{
    addFour();
    person.cancelProgressAt(2);
    open(definition(LastNameCityState));
    EXPECT_EQ(count->text(), "2 rows");
    EXPECT_EQ(column(1), QStringList({"Adler", "Berg"}));
    EXPECT_EQ(column(0), QStringList({"1", "2"}));
}

TEST_F(ReportDisplay, NothingElseBeginsInTheWindowWhileItRuns)
{
    for (int i = 0; i < 120; ++i)
        database.addCustomer({{"lastname", "Doe"}});
    const qint32 report = addReport(definition(LastNameCityState));
    form = std::make_unique<frmReportDisplay>();
    show(*form);
    int pumped = 0;
    host().pumpEvents = [&] {
        ++pumped;
        if (!form->isEnabled()) { // else the run is over
            EXPECT_FALSE(form->close());
            QTest::keyClick(form.get(), Qt::Key_F5);
        }
    };
    form->Init(report);
    EXPECT_GE(pumped, 2);
    EXPECT_EQ(person.progress().size(), 1);
    EXPECT_EQ(count->text(), "120 rows");
    EXPECT_TRUE(form->isEnabled());
    EXPECT_TRUE(form->close());
}

TEST_F(ReportDisplay, RefreshReadsAnewAndADeletedReportLeavesItsRows)
{
    addFour();
    const qint32 report = addReport(definition(LastNameCityState));
    open(report);
    gDB.DeleteRecord(ids[0], gDB.CustomerTable());
    machine.advance(std::chrono::minutes(1));
    QTest::keyClick(form.get(), Qt::Key_F5);
    EXPECT_EQ(column(1), QStringList({"Adler", "caspar", "Dahl"}));
    EXPECT_EQ(count->text(), "3 rows");
    EXPECT_TRUE(form->windowTitle().endsWith("@3:06:09 PM"));

    gDB.DeleteRecord(report, gDB.ReportTable());
    person.expectText("no longer exists");
    button(*form, "cmdRefresh")->click();
    EXPECT_EQ(column(1), QStringList({"Adler", "caspar", "Dahl"}));
    EXPECT_EQ(count->text(), "3 rows");
}

TEST_F(ReportDisplay, WithoutColumnsRowsOrAKnownTypeItSaysSoOrStaysEmpty)
{
    person.expect("Report definition does not specify any columns to display!")
        .kind(prompts::Kind::Critical)
        .title("Norvane");
    open(u"nonsense"_s);
    EXPECT_EQ(grid->model()->columnCount(), 0);

    open(definition(LastNameCityState));
    EXPECT_EQ(count->text(), "0 rows");
    EXPECT_EQ(grid->model()->columnCount(), 4);
    clickHeading(2);
    EXPECT_FALSE(grid->horizontalHeader()->isSortIndicatorShown());
    person.expect("Please select a row first!").kind(prompts::Kind::Warning);
    button(*form, "cmdZoomIn")->click();
    person.expect("There is nothing to print.");
    button(*form, "cmdPrint")->click();

    person.expect("Invalid report type!").kind(prompts::Kind::Critical);
    open(addReport(definition(LastNameCityState), u"Odd"_s, u"Z"_s));
    EXPECT_EQ(count->text(), QString());
    EXPECT_FALSE(button(*form, "cmdEmail")->isEnabled());
}

TEST_F(ReportDisplay, TheRecordBehindARowOpens)
{
    addFour();
    open(definition(LastNameCityState));
    clickHeading(2); // Aurora, Bend, Salem, salem: whose customers are 3, 1, and the others
    grid->selectCell(1, 2);
    button(*form, "cmdZoomIn")->click();
    EXPECT_EQ(board.calls(), QStringList(u"ShowCustomer %1 false"_s.arg(ids[1])));
    board.forget();
    const QPoint first = grid->visualRect(grid->model()->index(0, 1)).center();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, first);
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, first);
    EXPECT_EQ(board.calls(), QStringList(u"ShowCustomer %1 false"_s.arg(ids[3])));

    const qint32 issue = database.addIssue({{"custid", ids[0]}, {"shortdesc", "Jam"}});
    board.forget();
    open(addReport(definition(u"304"_s, false), u"Work"_s, u"I"_s));
    EXPECT_FALSE(button(*form, "cmdMailMerge")->isEnabled());
    QTest::keyClick(grid, Qt::Key_Return);
    EXPECT_EQ(board.calls(), QStringList(u"ShowIssue %1 -1 false -1"_s.arg(issue)));
    grid->clearSelection();
    person.expect("Please select a row first!");
    button(*form, "cmdZoomIn")->click();
}

TEST_F(ReportDisplay, FindGoesOnFromTheSelectedRowAndAsksAtTheEnd)
{
    addFour();
    open(definition(LastNameCityState)); // Adler salem, Berg Salem, caspar Aurora, Dahl Bend
    find(u"SALEM"_s);
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(grid->currentIndex().column(), 2);
    person
        .expect("No more occurences of 'SALEM' found! Would you like to search from the top of "
                "this view?",
                Answer::No)
        .buttons({Answer::Yes, Answer::No, Answer::Cancel});
    find(u"SALEM"_s);
    EXPECT_EQ(selectedRow(), 1);
    person.expect("No more occurences", Answer::Yes);
    person.expect("No occurences of 'SALEM' found!"); // but for the row it began at
    find(u"SALEM"_s);
    EXPECT_EQ(selectedRow(), 1);
    grid->selectCell(3, 1);
    person.expect("No more occurences", Answer::Yes);
    find(u"berg"_s, true);
    EXPECT_EQ(selectedRow(), 1) << "a whole cell, in any case";
}

TEST_F(ReportDisplay, FindTellsWhatIsNowhere)
{
    addFour();
    open(definition(LastNameCityState));
    // At the first row there is nothing to go on from, and no row before the second is looked at.
    for (const QString &text : {u"nowhere"_s, u"Adler"_s}) {
        person.expect("No occurences of '" + text + "' found!").kind(prompts::Kind::Information);
        find(text);
        EXPECT_EQ(selectedRow(), 0);
    }
    find(u"3"_s); // the number of a row
    EXPECT_EQ(selectedRow(), 2);
    person.expect("No more occurences of 'berg' found!", Answer::Cancel);
    find(u"berg"_s, true, true);
    EXPECT_EQ(selectedRow(), 2);
    find(u"Adler"_s, false, true, true);
    EXPECT_EQ(selectedRow(), 0);
}

TEST_F(ReportDisplay, TheFindBoxIsNamedAfterTheReportAndGoesWithIt)
{
    addFour();
    open(definition(LastNameCityState));
    QTest::keyClick(form.get(), Qt::Key_F, Qt::ControlModifier);
    auto *box = form->findChild<frmFind *>();
    ASSERT_NE(nullptr, box);
    EXPECT_EQ(box->windowTitle(), "Find in Who is where");
    EXPECT_TRUE(box->isVisible());
    QTest::keyClicks(box->findChild<QLineEdit *>(u"textFind"_s), u"dahl"_s);
    button(*box, "OKButton")->click();
    EXPECT_EQ(selectedRow(), 3);
    const QPointer<frmFind> gone(box);
    form.reset();
    EXPECT_TRUE(gone.isNull());
}
