// The life of a record window: new, read-only, edit, saved, left.
#include "CustomerFixture.h"

#include "common/ui/FormWindow.h"
#include "db/Screens.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabBar>
#include <QTabWidget>

namespace
{

const char *const Discard = "Do you wish to discard your changes (if any)?";

// Answers the question about a record that somebody else edits.
class UnderEditAnswer
{
public:
    explicit UnderEditAnswer(bool editAnyway) : m_before(screens().askUnderEdit)
    {
        screens().askUnderEdit = [this, editAnyway](const QString &user, const QString &station) {
            asked = user + u'@' + station;
            return editAnyway;
        };
    }
    ~UnderEditAnswer() { screens().askUnderEdit = m_before; }
    UnderEditAnswer(const UnderEditAnswer &) = delete;
    UnderEditAnswer &operator=(const UnderEditAnswer &) = delete;

    QString asked;

private:
    std::function<bool(const QString &, const QString &)> m_before;
};

} // namespace

TEST_F(CustomerForm, NewCustomerWaitsForItsFirstSave)
{
    openNew();
    EXPECT_EQ(form->tagText(), "C-1");
    EXPECT_EQ(form->windowTitle(), "Customer Name");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_TRUE(find<QPushButton>("lblEdit")->isHidden());
    EXPECT_TRUE(find<QLabel>("lblNewCust")->isVisible());
    EXPECT_FALSE(find<QPushButton>("cmdRefresh")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdDelete")->isEnabled());
    EXPECT_TRUE(find<QLineEdit>("txtCustNo")->hasFocus());
    EXPECT_EQ(find<QLabel>("lblCustomerID")->text(), "");

    type("txtFname", "Ann");
    type("txtLname", "Smith");
    click("cmdApply");

    EXPECT_EQ(form->tagText(), "C1000");
    EXPECT_TRUE(IsFormLoaded(QStringLiteral("C1000")));
    EXPECT_EQ(form->windowTitle(), "Customer: Smith, Ann @3:05:09 PM");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(find<QLabel>("lblCustomerID")->text(), "ID: 1000");
    EXPECT_FALSE(find<QLabel>("lblNewCust")->isVisible());
    EXPECT_EQ(stored(1000, "lastname"), "Smith");
    EXPECT_EQ(find<QLineEdit>("txtModifiedBy")->text(), gDB.LoginName());
    EXPECT_EQ(find<QLineEdit>("txtModifiedAt")->text(), "3:05:09 PM");
}

TEST_F(CustomerForm, ApplyEndsTheEditAndTheNextOneTakesANewMark)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    open(id);
    EXPECT_FALSE(find<QPushButton>("OKButton")->isEnabled());
    EXPECT_FALSE(find<QPushButton>("cmdApply")->isEnabled());
    EXPECT_EQ(find<QPushButton>("lblEdit")->text(), "Edi&t Data");

    for (const char *city : {"Bern", "Basel"}) {
        click("lblEdit");
        EXPECT_EQ(markOwner(id), gDB.LoginID());
        EXPECT_EQ(find<QPushButton>("lblEdit")->text(), "Cancel Edi&t");
        type("txtCity", QLatin1String(city));
        click("cmdApply");
        EXPECT_EQ(markOwner(id), 0);
        EXPECT_FALSE(find<QPushButton>("cmdApply")->isEnabled());
        EXPECT_EQ(stored(id, "city"), city);
    }
}

// Lists and labels are read from two tables many times; each is told of once.
TEST_F(CustomerForm, AFolderThatGoesAwayIsToldOnceATableAndCostsNoTypedText)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    open(id);
    const QDir folder(database.path());
    const QString elsewhere = folder.path() + QLatin1String(".away");
    ASSERT_TRUE(QDir().rename(folder.path(), elsewhere));
    for (const char *file : {"nvncat.dbf", "nvnparam.dbf", "nvncust.dbf"})
        person.expect(QStringLiteral("Unable to open: ") + database.file(QLatin1String(file)));
    person.expectText("Record cannot be accessed");
    click("cmdRefresh");
    EXPECT_EQ(person.left(), 0);

    ASSERT_TRUE(QDir().rename(elsewhere, folder.path()));
    click("lblEdit");
    type("txtCity", "Bern");
    ASSERT_TRUE(QDir().rename(folder.path(), elsewhere));
    person.expect("Unable to open");
    person.expectText("Record cannot be accessed");
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(find<QLineEdit>("txtCity")->text(), "Bern");

    ASSERT_TRUE(QDir().rename(elsewhere, folder.path()));
    click("cmdApply");
    EXPECT_EQ(stored(id, "city"), "Bern");
}

// Saving would store the gaps that a list left on the screen.
TEST_F(CustomerForm, NoEditWhileAListCannotBeRead)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}, {"country", 101}});
    open(id);
    const QString lists = database.file(QStringLiteral("nvncat.dbf"));
    ASSERT_TRUE(QFile::rename(lists, lists + u".away"));
    person.expect(u"Unable to open: " + lists);
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(markOwner(id), 0);

    ASSERT_TRUE(QFile::rename(lists + u".away", lists));
    click("lblEdit");
    click("OKButton");
    EXPECT_EQ(stored(id, "country"), "101");
}

TEST_F(CustomerForm, OkSavesAndCloses)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    type("txtCoName", "Acme and Sons");
    click("OKButton");
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(IsFormLoaded(form->tagText()));
    EXPECT_EQ(stored(id, "company"), "Acme and Sons");
    EXPECT_EQ(markOwner(id), 0);
}

TEST_F(CustomerForm, AnEditStartsFromWhatIsStoredNow)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    open(id);
    RecColl elsewhere = gDB.NewCustomerRecColl();
    elsewhere.setExisting(QStringLiteral("company"), QStringLiteral("Acme Ltd"));
    elsewhere.setExisting(QStringLiteral("_rowid"), id);
    ASSERT_TRUE(gDB.SaveRecord(elsewhere));
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Acme");

    click("lblEdit");
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Acme Ltd");
    EXPECT_EQ(form->windowTitle(), "Customer: Acme Ltd @3:05:09 PM");
}

TEST_F(CustomerForm, LeavingAnEditAsksAndOnlyYesDiscards)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    type("txtCoName", "Typed");

    person.expect(Discard, Answer::No)
        .kind(prompts::Kind::Question)
        .buttons({Answer::Yes, Answer::No, Answer::Cancel})
        .preset(Answer::No);
    click("lblEdit");
    person.expect(Discard, Answer::Cancel);
    EXPECT_FALSE(form->close());
    person.expect(Discard, Answer::No);
    click("CancelButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(markOwner(id), gDB.LoginID());
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Typed");

    person.expect(Discard, Answer::Yes);
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(markOwner(id), 0);
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Acme");
    click("CancelButton"); // asks nothing in read-only mode
    EXPECT_FALSE(form->isVisible());
}

TEST_F(CustomerForm, ClosingAnEditWithYesClearsTheMark)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    person.expect(Discard, Answer::Yes);
    EXPECT_TRUE(form->close());
    EXPECT_EQ(markOwner(id), 0);

    openNew(); // no row, no mark: the question comes all the same
    person.expect(Discard, Answer::Yes);
    EXPECT_TRUE(form->close());
}

TEST_F(CustomerForm, ARecordUnderEditElsewhereIsLeftAloneUnlessTheUserInsists)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    const auto other = database.otherStation();
    other->SetEditInfo(other->CustomerTable(), QStringLiteral("nvncust.dbf"), id, false);

    open(id);
    {
        const UnderEditAnswer later(false);
        click("lblEdit");
        EXPECT_EQ(later.asked.toLower(), "sysop@station2");
    }
    EXPECT_FALSE(form->inEditMode());
    const UnderEditAnswer anyway(true);
    click("lblEdit");
    EXPECT_TRUE(form->inEditMode());
}

TEST_F(CustomerForm, ARecordDeletedElsewhereCannotBeEditedOrSaved)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    type("txtCity", "Bern");
    ASSERT_TRUE(gDB.DeleteRecord(id, gDB.CustomerTable()));

    const QString gone = QStringLiteral("Record cannot be accessed or no longer exists.");
    person.expectText(gone);
    click("OKButton");
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(find<QLineEdit>("txtCity")->text(), "Bern");

    person.expect(Discard, Answer::Yes);
    person.expectText(gone); // from reading it again
    click("lblEdit");
    person.expectText(gone);
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
}

// The row goes between the last check and the write.
TEST_F(CustomerForm, AFailingSaveKeepsEverythingTyped)
{
    database.addCustomer({{"company", "Other"}, {"custno", "77"}});
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    openForEdit(id);
    type("txtCustNo", "77");
    type("txtCity", "Bern");
    person.expect("other customer(s) with the same", Answer::Yes).meanwhile([id] {
        ASSERT_TRUE(gDB.DeleteRecord(id, gDB.CustomerTable()));
    });
    person.expect("ROWID NOT FOUND: Unable to update record!").kind(prompts::Kind::Critical);
    click("cmdApply");
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(find<QLineEdit>("txtCity")->text(), "Bern");
    EXPECT_EQ(find<QLineEdit>("txtCustNo")->text(), "77");
    EXPECT_FALSE(machine.isBusy());
}

TEST_F(CustomerForm, WithoutTheRightARecordCanBeReadOnly)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    database.addUser(QStringLiteral("jane"), QStringLiteral("0111"));
    database.loginAs(QStringLiteral("jane"), QStringLiteral("jane"));
    open(id);
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Acme");
    person.expectText("Sorry, you are not permitted to perform this action.");
    click("lblEdit");
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(markOwner(id), 0);
}

TEST_F(CustomerForm, RefreshReadsAgainInReadOnlyModeOnly)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    open(id);
    machine.advance(std::chrono::seconds(60));
    click("cmdRefresh");
    EXPECT_EQ(form->windowTitle(), "Customer: Acme @3:06:09 PM");

    machine.advance(std::chrono::seconds(60));
    QTest::keyClick(find<QTabWidget>("tabs"), Qt::Key_F5);
    EXPECT_EQ(form->windowTitle(), "Customer: Acme @3:07:09 PM");

    click("lblEdit");
    type("txtCoName", "Typed");
    QTest::keyClick(find<QLineEdit>("txtCoName"), Qt::Key_F5);
    EXPECT_EQ(find<QLineEdit>("txtCoName")->text(), "Typed");
    person.expect(Discard, Answer::Yes);
    form->close();
}

TEST_F(CustomerForm, KeysOfTheWholeWindow)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    open(id);
    auto *box = find<QLineEdit>("txtCity");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(form->inEditMode());
    QTest::keyClick(box, Qt::Key_E, Qt::ControlModifier); // never leaves edit mode
    EXPECT_TRUE(form->inEditMode());

    QTest::keyClick(box, Qt::Key_F1);
    EXPECT_EQ(board.calls(), QStringList{QStringLiteral("showHelp 1300")});

    person.expect(Discard, Answer::No);
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());

    showPage(1);
    auto *note = form->findChild<QWidget *>(QStringLiteral("txtNote"));
    QTest::keyClick(note, Qt::Key_Return); // a line break there
    EXPECT_TRUE(form->isVisible());

    showPage(0);
    auto *state = find<QComboBox>("cboStates"); // is switched off with the edit
    state->setFocus();
    QTest::keyClick(state, Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(form->inEditMode());
    EXPECT_EQ(QApplication::focusWidget(), find<QTabWidget>("tabs")->tabBar());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_E, Qt::ControlModifier);
    box->setFocus();
    QTest::keyClicks(box, "Bern");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stored(id, "city"), "Bern");
}

TEST_F(CustomerForm, CtrlEDoesNothingForANewRecord)
{
    openNew();
    QTest::keyClick(find<QLineEdit>("txtCustNo"), Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(form->inEditMode());
    EXPECT_EQ(person.seen().size(), 0u);
    person.expect(Discard, Answer::Yes);
    form->close();
}

TEST_F(CustomerForm, TheFrameInTheMainWindowObeysTheSameQuestion)
{
    const qint32 id = database.addCustomer({{"company", "Acme"}});
    QMdiArea area;
    area.show();
    form = std::make_unique<frmCustomer>();
    form->Init(id, false);
    QMdiSubWindow *frame = area.addSubWindow(form.get());
    frame->setAttribute(Qt::WA_DeleteOnClose, false);
    frame->show();
    EXPECT_EQ(frame->windowTitle(), "Customer: Acme @3:05:09 PM");
    click("lblEdit");
    person.expect(Discard, Answer::No);
    EXPECT_FALSE(frame->close());
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(form->inEditMode());
    click("OKButton");
    EXPECT_FALSE(frame->isVisible());
    form->setParent(nullptr);
}
