// The wizard that deletes old issues, as an administrator works with it.
#include "admin/frmPurgeIssues.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/Station.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

using schema::Table;

namespace
{

constexpr qint32 open = 400;
constexpr qint32 closed = 401;

class Purge : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;
    using Kind = prompts::Kind;

    Purge() : wizard(std::make_unique<frmPurgeIssues>("the advice"))
    {
        wizard->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(wizard.get()));
    }
    template <class T>
    T *part(const char *name) const
    {
        T *found = wizard->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    ListView *list() const { return part<ListView>("lv"); }
    QString label(const char *name) const { return part<QLabel>(name)->text(); }
    QPushButton *button(const char *name) const { return part<QPushButton>(name); }
    QString caption(const char *name) const { return button(name)->text().remove(u'&'); }
    int step() const { return part<QStackedWidget>("pages")->currentIndex(); }
    void next() const { button("cmdNext")->click(); }
    void choose(const QString &date, qint32 status) const
    {
        part<QLineEdit>("txtDateSubmit")->setText(date);
        auto *statuses = part<QComboBox>("cboStatus");
        statuses->setCurrentIndex(statuses->findData(status));
    }
    void look(const QString &date, qint32 status) const
    {
        next();
        choose(date, status);
        next();
    }
    qint32 addIssue(const char *submitted, qint32 status)
    {
        return database.addIssue(
            {{"submitdt", submitted}, {"status", status}, {"shortdesc", "printer"}});
    }
    QStringList column(int at) const
    {
        QStringList texts;
        for (int row = 0; row < list()->itemCount(); ++row)
            texts += list()->itemText(row, at);
        return texts;
    }
    prompts::Message lastBox() const { return person.seen().back().message; }
    void expectQuestion(Answer answer)
    {
        person.expect("Are you sure you want to PERMANENTLY DELETE the displayed issues?", answer)
            .title("Delete Confirmation")
            .kind(Kind::Question)
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::No);
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<frmPurgeIssues> wizard;
};

} // namespace

TEST_F(Purge, LeadsFromTheBackupOverTheCriteriaToTheIssues)
{
    EXPECT_EQ(wizard->windowTitle(), "Purge (Delete) Old Issues Wizard");
    EXPECT_TRUE(label("lblBackupFirst")
                    .startsWith("BACK UP YOUR DATA FIRST! We strongly suggest "
                                "that you backup your Norvane database now,"));
    EXPECT_FALSE(button("cmdPrevious")->isEnabled());
    EXPECT_EQ(caption("lblBackup"), "How to backup data?");
    person.expectText("the advice").kind(Kind::Information);
    button("lblBackup")->click();
    next();
    board.pickedDate = "5/6/2003";
    button("cmdCalendar")->click();
    EXPECT_EQ(part<QLineEdit>("txtDateSubmit")->text(), "5/6/2003");
    choose(" 5/6/2003 ", closed);
    next();
    EXPECT_EQ(step(), 2);
    EXPECT_EQ(caption("cmdNext"), "Purge Now");
    EXPECT_EQ(label("lblCriteria"),
              "Issues submitted on or before 5/6/2003 with an issue status of 'Closed'");
    EXPECT_EQ(label("lblNumIssues"), "0 issue(s)");
    EXPECT_EQ(person.progress().back().title, wizard->windowTitle());
    EXPECT_EQ(person.progress().back().message,
              "Displaying issues that meet the criteria. Please wait...");
    EXPECT_TRUE(person.progress().back().cancel);
    EXPECT_FALSE(button("cmdProperties")->isEnabled());
    person.expect("Currently, there are no issues to purge/delete that meet your criteria.")
        .kind(Kind::Information);
    next();
    EXPECT_TRUE(button("cmdNext")->isEnabled());
    button("cmdPrevious")->click();
    button("cmdPrevious")->click();
    EXPECT_EQ(step(), 0);
    EXPECT_EQ(caption("cmdNext"), "Next >>");
    button("CancelButton")->click();
    EXPECT_FALSE(wizard->isVisible());
}

TEST_F(Purge, CriteriaThatAreNoneStayInTheirStep)
{
    const QString enter = "  - Issue Submit Date must be entered.";
    const QString noDate = "  - Issue Submit Date is not a valid date.";
    const QString status = "  - Issue Status Criteria must be selected.";
    next();
    const struct {
        const char *date;
        qint32 status;
        QStringList told;
    } cases[] = {{"", -1, {enter, status}},
                 {"  ", closed, {enter}},
                 {"13/45/2003", closed, {noDate}},
                 {"soon", -1, {noDate, status}},
                 {"5/6/2003", -1, {status}}};
    for (const auto &[date, statusId, told] : cases) {
        SCOPED_TRACE(date);
        person
            .expectText("Please correct the following errors before proceeding:\r\n\r\n\r\n" +
                        told.join("\r\n"))
            .kind(Kind::Critical);
        choose(date, statusId);
        next();
        EXPECT_EQ(step(), 1);
    }
}

TEST_F(Purge, ListsWhatIsOldEnoughAndOfTheStatusAlone)
{
    const qint32 onTheDay = addIssue("5/6/2003", closed);
    const qint32 before = addIssue("12/31/1999", closed);
    const qint32 undated = addIssue("", closed);
    addIssue("5/7/2003", closed);
    addIssue("5/6/2003", open);
    look("5/6/2003", closed);
    EXPECT_EQ(column(0), (QStringList{QString::number(onTheDay), QString::number(before),
                                      QString::number(undated)}));
    EXPECT_EQ(column(1), (QStringList{"5/6/2003", "12/31/1999", ""}));
    EXPECT_EQ(column(2), (QStringList{"Closed", "Closed", "Closed"}));
    EXPECT_EQ(column(3).first(), "printer");
    EXPECT_EQ(list()->itemKey(1), LvKey(before));
    EXPECT_EQ(label("lblNumIssues"), "3 issue(s)");
    LvSelectItem(list(), LvKey(undated));
    button("cmdProperties")->click();
    EXPECT_EQ(board.calls().back(), QString("ShowIssue %1 -1 false -1").arg(undated));

    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        expectQuestion(answer);
        next();
        EXPECT_EQ(list()->itemCount(), 3);
    }
    expectQuestion(Answer::Yes);
    person.expect("3 issues have been deleted!").kind(Kind::Information);
    next();
    EXPECT_EQ(person.progress().back().title, "Deleting Issues");
    EXPECT_EQ(person.progress().back().message, "Please wait...");
    EXPECT_FALSE(person.progress().back().cancel);
    EXPECT_EQ(person.progress().back().percents.back(), 100);
    EXPECT_EQ(list()->itemCount(), 0);
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), "rowid"), 2);
    EXPECT_EQ(caption("CancelButton"), "Finish");
    for (const char *name : {"cmdNext", "cmdPrevious"})
        EXPECT_FALSE(button(name)->isEnabled());
    for (const char *name : {"lblPurgeNow", "lblPreview", "lblNumIssues"})
        EXPECT_FALSE(part<QLabel>(name)->isVisible());
}

// As text, "10..." stands before "9...".
TEST_F(Purge, SortsByNumberAsTextAndTakesOnlyWhatWasReadBeforeCancel)
{
    person.cancelProgressAt(3);
    QList<qint32> ids;
    for (int i = 0; i < 5; ++i)
        ids += addIssue("5/6/2003", closed);
    look("5/6/2003", closed);
    QStringList shown = column(0);
    EXPECT_LT(shown.size(), 5);
    ASSERT_FALSE(shown.isEmpty());
    QStringList sorted = shown;
    sorted.sort();
    EXPECT_EQ(shown, sorted);
    expectQuestion(Answer::Yes);
    person.expect(QString("%1 issues have been deleted!").arg(shown.size()));
    next();
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), "rowid"), 5 - shown.size());
}

TEST_F(Purge, TellsHowManyRemainWhenSomeCouldNotBeDeleted)
{
    const qint32 locked = addIssue("5/6/2003", closed);
    addIssue("5/6/2003", closed);
    norvane::engine::code4lockDelay(gDB.CBEngine(), 1);
    Station other(database.path());
    ASSERT_EQ(other.ask(QString("lockrow nvnissues.dbf %1").arg(locked)), "ok");
    look("5/6/2003", closed);
    expectQuestion(Answer::Yes);
    person.expect("RECORD LOCKED: Unable to Delete from");
    person.expect("1 issues have been deleted!");
    person.expect("1 of the issues could not be deleted and remain.").kind(Kind::Warning);
    next();
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesTable(), "rowid"), 1);
}
