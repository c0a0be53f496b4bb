// The actions of an issue: the list and the dialog of one of them.
#include "IssueFixture.h"

#include "common/ui/ListView.h"
#include "forms/frmIssueAction.h"
#include "forms/IssueActionsCtl.h"
#include "support/DialogDriver.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QToolButton>

namespace
{

constexpr int ActionsPage = 1;

template <class T>
T *in(QWidget *dialog, const char *name)
{
    T *found = dialog->findChild<T *>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

void setText(QWidget *dialog, const char *box, const char *text)
{
    in<QLineEdit>(dialog, box)->setText(QLatin1String(text));
}

class IssueActions : public IssueForm
{
protected:
    void openActions(bool edit)
    {
        open(issue);
        if (edit)
            click("lblEdit");
        showPage(ActionsPage);
    }
    // Of the actions list; there is one of the attachments too.
    QStringList row(int at) const
    {
        QStringList texts;
        for (int column = 0; column < 5; ++column)
            texts += actions()->itemText(at, column);
        return texts;
    }
    ListView *actions() const
    {
        return find<QWidget>("IACtl")->findChild<ListView *>(QStringLiteral("lv"));
    }
    QString total() const { return find<QLabel>("lblTotalDuration")->text(); }
    QString storedAction(qint32 id, const char *field) const
    {
        return database.stored(schema::Table::IssuesActions, id, QLatin1String(field));
    }

    qint32 issue = addIssue(QStringLiteral("x"));
};

} // namespace

TEST_F(IssueActions, TheListShowsAndAddsUp)
{
    openActions(false);
    EXPECT_EQ(total(), "Total Duration = 0.00");
    EXPECT_FALSE(find<QWidget>("cmdEditView")->isEnabled());

    addAction({{"issueid", issue},
               {"date", "20040302"},
               {"action", 530},
               {"perfby", gDB.LoginID()},
               {"desc", "Called"},
               {"duration", "1234.5"}});
    addAction({{"issueid", issue}, {"date", "20040303"}, {"duration", "0.0049"}});
    addAction({{"issueid", issue}, {"duration", "0.0049"}});
    addAction({{"issueid", issue + 1}, {"duration", "7"}}); // of another issue
    click("cmdRefresh");
    ASSERT_EQ(actions()->itemCount(), 3);
    EXPECT_EQ(row(0), QStringList({"3/2/2004", "Telephone Call", gDB.GetUsername(gDB.LoginID()),
                                   "Called", "1,234.50"}));
    EXPECT_EQ(row(2), QStringList({"", "", "", "", "0.00"}));
    EXPECT_EQ(total(), "Total Duration = 1,234.51"); // of what is stored, not of what is shown
}

TEST_F(IssueActions, AnActionIsAddedEditedAndDeletedAtOnce)
{
    openActions(true);
    {
        DialogDriver adding([&](QWidget *dialog) {
            EXPECT_EQ(dialog->windowTitle(), "Add Issue Action");
            EXPECT_EQ(in<QLineEdit>(dialog, "txtDate")->text(), "3/14/2004");
            EXPECT_EQ(in<QLineEdit>(dialog, "txtDuration")->text(), "0.00");
            EXPECT_TRUE(in<QComboBox>(dialog, "cboAssignedTo")
                            ->currentText()
                            .contains("sysop", Qt::CaseInsensitive));
            in<QComboBox>(dialog, "cboAction")->setCurrentText("Site Visit");
            setText(dialog, "txtDesc", "Went there");
            setText(dialog, "txtDuration", "1,000.25");
            in<QPlainTextEdit>(dialog, "txtNote")->setPlainText("by train");
            clickButton(dialog, "OKButton");
        });
        click("cmdAdd");
    }
    ASSERT_EQ(actions()->itemCount(), 1);
    EXPECT_EQ(LvGetSelectedItemKey(actions()), "N1000");
    EXPECT_EQ(storedAction(1000, "issueid"), QString::number(issue));
    EXPECT_EQ(storedAction(1000, "date"), "20040314");
    EXPECT_EQ(storedAction(1000, "action"), "535");
    EXPECT_EQ(storedAction(1000, "perfby"), QString::number(gDB.LoginID()));
    EXPECT_EQ(storedAction(1000, "duration").toDouble(), 1000.25);
    EXPECT_EQ(storedAction(1000, "notes"), "by train");
    EXPECT_EQ(total(), "Total Duration = 1,000.25");

    {
        DialogDriver editing([&](QWidget *dialog) {
            EXPECT_EQ(dialog->windowTitle(), "Edit Issue Action");
            EXPECT_EQ(in<QComboBox>(dialog, "cboAction")->currentText(), "Site Visit");
            EXPECT_EQ(in<QLineEdit>(dialog, "txtDuration")->text(), "1,000.25");
            setText(dialog, "txtDuration", "");
            setText(dialog, "txtDate", "2004-03-13");
            clickButton(dialog, "OKButton");
        });
        QTest::keyClick(actions(), Qt::Key_Return);
    }
    EXPECT_EQ(storedAction(1000, "duration").toDouble(), 0);
    EXPECT_EQ(row(0).first(), "3/13/2004");

    {
        person.expect("Are you sure you want to delete this Issue Action?", Answer::No)
            .preset(Answer::No);
        person.expect("Are you sure you want to delete this Issue Action?", Answer::Yes);
        person.expect("Issue Action has been deleted!");
        DialogDriver deleting([&](QWidget *dialog) {
            EXPECT_EQ(dialog->windowTitle(), "Delete Issue Action");
            EXPECT_TRUE(in<QLineEdit>(dialog, "txtDesc")->isReadOnly());
            EXPECT_EQ(in<QPushButton>(dialog, "OKButton")->text(), "DELETE");
            clickButton(dialog, "OKButton"); // No: the dialog stays
            EXPECT_TRUE(dialog->isVisible());
            clickButton(dialog, "OKButton");
        });
        click("cmdDel");
    }
    EXPECT_EQ(actions()->itemCount(), 0);
    EXPECT_TRUE(storedAction(1000, "desc").isNull());

    // What was done to actions is done, whatever becomes of the issue's edit.
    discard();
}

TEST_F(IssueActions, InReadOnlyModeAnActionIsOnlyLookedAt)
{
    addAction({{"issueid", issue}, {"date", "20040302"}, {"action", 530}, {"desc", "Called"}});
    openActions(false);
    EXPECT_EQ(find<QPushButton>("cmdEditView")->text(), "View");
    EXPECT_FALSE(find<QWidget>("cmdAdd")->isEnabled());
    EXPECT_FALSE(find<QWidget>("cmdDel")->isEnabled());
    DialogDriver viewing([&](QWidget *dialog) {
        EXPECT_EQ(dialog->windowTitle(), "View Issue Action");
        EXPECT_TRUE(in<QLineEdit>(dialog, "txtDate")->isReadOnly());
        EXPECT_FALSE(in<QComboBox>(dialog, "cboAction")->isEnabled());
        EXPECT_FALSE(in<QWidget>(dialog, "cmdCalendar")->isEnabled());
        EXPECT_FALSE(in<QPushButton>(dialog, "CancelButton")->isVisible());
        auto *close = in<QPushButton>(dialog, "OKButton");
        EXPECT_EQ(close->text(), "Close");
        EXPECT_TRUE(close->isDefault());
        clickButton(dialog, "OKButton");
    });
    click("cmdEditView");
    click("lblEdit");
    EXPECT_EQ(find<QPushButton>("cmdEditView")->text(), "Edit");
    EXPECT_TRUE(find<QWidget>("cmdDel")->isEnabled());
    discard();
}

TEST_F(IssueActions, EveryFaultIsToldAndTheDialogStays)
{
    openActions(true);
    person.expectText("Please correct the following data entry fields:\n\n"
                      "  - DATE entered is not a valid date.\n\n"
                      "  - ACTION must be selected.\n\n"
                      "  - DURATION must be numeric.\n\n");
    person.expectText("Please correct the following data entry fields:\n\n"
                      "  - DATE must be entered.\n\n"
                      "  - ACTION must be selected.\n\n");
    DialogDriver driver([&](QWidget *dialog) {
        setText(dialog, "txtDate", "tomorrow");
        setText(dialog, "txtDuration", "an hour");
        clickButton(dialog, "OKButton");
        setText(dialog, "txtDate", " ");
        setText(dialog, "txtDuration", "");
        clickButton(dialog, "OKButton");
        EXPECT_TRUE(dialog->isVisible());
        clickButton(dialog, "CancelButton");
    });
    click("cmdAdd");
    EXPECT_EQ(actions()->itemCount(), 0);
    discard();
}

TEST_F(IssueActions, AnIssueOrActionThatIsGoneKeepsTheDialogWithItsText)
{
    const qint32 id = addAction({{"issueid", issue}, {"action", 530}, {"desc", "Called"}});
    openActions(true);
    {
        person.expectText("Record cannot be accessed or no longer exists.");
        DialogDriver editing([&](QWidget *dialog) {
            setText(dialog, "txtDate", "3/1/2004");
            setText(dialog, "txtDesc", "Typed");
            ASSERT_TRUE(gDB.DeleteRecord(id, gDB.IssuesActionsTable()));
            clickButton(dialog, "OKButton");
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_EQ(in<QLineEdit>(dialog, "txtDesc")->text(), "Typed");
            clickButton(dialog, "CancelButton");
        });
        click("cmdEditView");
    }
    {
        person.expectText("The Issue record to which this Action record belongs to no longer "
                          "exists or is inaccessible.");
        DialogDriver adding([&](QWidget *dialog) {
            in<QComboBox>(dialog, "cboAction")->setCurrentText("Site Visit");
            ASSERT_TRUE(gDB.DeleteRecord(issue, gDB.IssuesTable()));
            clickButton(dialog, "OKButton");
            EXPECT_TRUE(dialog->isVisible());
            clickButton(dialog, "CancelButton");
        });
        click("cmdAdd");
    }
    EXPECT_EQ(gDB.GetRecCount(gDB.IssuesActionsTable(), QStringLiteral("rowid")), 0);
    discard();
}

TEST_F(IssueActions, TheTextHasTheListFirstAndThenEveryNote)
{
    addAction({{"issueid", issue}, {"date", "20040302"}, {"action", 530}, {"notes", "first"}});
    addAction({{"issueid", issue}, {"date", "20040303"}, {"action", 531}});
    openActions(false);
    auto *control = form->findChild<IssueActionsCtl *>();
    EXPECT_EQ(control->NotesContent(), "\n\n=== 3/2/2004 ===\nfirst\n\n=== 3/3/2004 ===\n\n");
    const QString content = control->content();
    EXPECT_TRUE(content.startsWith("Date")) << qPrintable(content);
    EXPECT_TRUE(content.contains("Telephone Call"));
    EXPECT_TRUE(content.endsWith("\n" + control->NotesContent()));
}
