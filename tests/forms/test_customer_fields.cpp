// Each field on its way from the control to the table and back.
#include "CustomerFixture.h"

#include "common/base/Ansi.h"
#include "common/form/FieldBinding.h"
#include "common/ui/Grid.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace
{

struct TextField {
    const char *control;
    const char *field;
};

constexpr TextField textFields[] = {
    {"txtCustNo", "custno"},       {"txtFname", "firstname"},     {"txtLname", "lastname"},
    {"txtCoName", "company"},      {"txtTitle", "title"},         {"txtAddress1", "address1"},
    {"txtAddress2", "address2"},   {"txtCity", "city"},           {"txtPostalCode", "postalcode"},
    {"txtWorkPhone", "workphone"}, {"txtHomePhone", "homephone"}, {"txtMobilePhone", "mobilphone"},
    {"txtFaxphone", "faxphone"},   {"txtEmailName", "emailname"}, {"txtEmailName2", "emailname2"}};

constexpr TextField comboFields[] = {
    {"cboSalutation", "salutation"}, {"txtCust1", "custom1"}, {"txtCust2", "custom2"}};

QString emptyContacts()
{
    return QStringLiteral("\u00fe\u00fe\u00fe\u00fe\r").repeated(50);
}

} // namespace

TEST_F(CustomerForm, TextsAreStoredUnderTheirOwnFieldsUpToTheirFullLength)
{
    openNew();
    QHash<QString, QString> typed;
    const auto fill = [&typed](QLineEdit *box, const char *field) {
        EXPECT_GT(box->maxLength(), 0);
        EXPECT_LT(box->maxLength(), 200) << field;
        const QString text = QLatin1String(field) + QString(200, u'x');
        box->selectAll();
        box->insert(text); // as pasted: cut where the table would cut it
        typed[QLatin1String(field)] = text.left(box->maxLength());
    };
    for (const TextField &text : textFields)
        fill(find<QLineEdit>(text.control), text.field);
    for (const TextField &text : comboFields)
        fill(find<QComboBox>(text.control)->lineEdit(), text.field);
    click("cmdApply");
    for (auto it = typed.cbegin(); it != typed.cend(); ++it)
        EXPECT_EQ(stored(1000, it.key().toLatin1().constData()), it.value())
            << qPrintable(it.key());

    open(1000);
    for (const TextField &text : textFields)
        EXPECT_EQ(find<QLineEdit>(text.control)->text(), typed[QLatin1String(text.field)]);
    for (const TextField &text : comboFields)
        EXPECT_EQ(find<QComboBox>(text.control)->currentText(), typed[QLatin1String(text.field)]);
}

TEST_F(CustomerForm, LookupsHoldTheItemsIdAndCanBeEmptied)
{
    const qint32 first = database.addListItem(1, QStringLiteral("Silver plan"));
    database.addListItem(1, QStringLiteral("Gold plan"));
    const qint32 state = database.addListItem(3, QStringLiteral("Vaud"));
    const qint32 id = database.addCustomer({{"company", "Acme"}, {"custcat", first}});
    openForEdit(id);
    EXPECT_EQ(find<QComboBox>("cboCategory")->currentText(), "Silver plan");
    EXPECT_EQ(find<QComboBox>("cboCountry")->currentText(), "");
    choose("cboStates", QStringLiteral("Vaud"));
    choose("cboCategory", QString());
    click("cmdApply");
    EXPECT_EQ(stored(id, "state"), QString::number(state));
    EXPECT_EQ(stored(id, "custcat"), "-1");
    EXPECT_EQ(stored(id, "country"), "-1");
}

TEST_F(CustomerForm, QuickEntriesAreOfferedAndNotForced)
{
    database.addListItem(200, QStringLiteral("Blue"));
    openNew();
    auto *combo = find<QComboBox>("txtCust1");
    EXPECT_GE(combo->findText("Blue"), 0);
    EXPECT_EQ(find<QComboBox>("txtCust2")->findText("Blue"), -1);
    EXPECT_EQ(combo->currentText(), ""); // filling the list chooses nothing
    combo->setFocus();
    QTest::keyClicks(combo, "blue");
    type("txtCoName", "Acme");
    click("cmdApply");
    EXPECT_EQ(stored(1000, "custom1"), "blue"); // as typed
}

TEST_F(CustomerForm, AListEditedBesideItsFieldComesBackWithWhatWasChosen)
{
    const struct {
        const char *button;
        const char *combo;
        qint32 type;
    } lists[] = {{"cboCatCategory", "cboCategory", 1},
                 {"cmdCatStates", "cboStates", 3},
                 {"cboCatCountry", "cboCountry", 4},
                 {"cmdCust1Cat", "txtCust1", 200},
                 {"cmdCust2Cat", "txtCust2", 201}};
    qint32 added = 0;
    board.onEditCategory = [&](qint32 type) { added = database.addListItem(type, "aaa"); };
    for (const auto &list : lists)
        database.addListItem(list.type, "Chosen");
    openNew();
    for (const auto &list : lists) {
        auto *combo = find<QComboBox>(list.combo);
        combo->setCurrentText(combo->isEditable() ? "as typed" : "Chosen");
        const QString before = combo->currentText();
        board.forget();
        find<QAbstractButton>(list.button)->click();
        EXPECT_EQ(board.calls(), QStringList{QStringLiteral("EditCategory %1").arg(list.type)});
        EXPECT_EQ(combo->currentText(), before);
        EXPECT_EQ(combo->itemData(combo->findText("aaa")).toInt(), added);
        EXPECT_TRUE(combo->hasFocus());
    }

    // An item deleted there is not chosen any more; a list that has gone leaves the choice alone.
    auto *combo = find<QComboBox>("cboStates");
    const qint32 chosen = combo->currentData().toInt();
    const QString path = gDB.CategoryTable();
    board.onEditCategory = [&](qint32) { QFile::rename(path, path + u".away"); };
    person.expect(u"Unable to open: " + path);
    find<QAbstractButton>("cmdCatStates")->click();
    EXPECT_EQ(combo->currentData().toInt(), chosen);
    QFile::rename(path + u".away", path);
    board.onEditCategory = [&](qint32) { gDB.DeleteRecord(chosen, path); };
    find<QAbstractButton>("cmdCatStates")->click();
    EXPECT_EQ(combo->currentText(), "");
    EXPECT_EQ(combo->findText("Chosen"), -1);
    type("txtCoName", "Acme");
    click("cmdApply");
    EXPECT_EQ(stored(1000, "custom1"), "as typed");
    EXPECT_FALSE(find<QAbstractButton>("cmdCust1Cat")->isEnabled());
}

TEST_F(CustomerForm, NotesKeepTheirLinesAndCharacters)
{
    const QString text = QStringLiteral("first\nsecond \u00e4\u00a0\u20ac\n");
    openNew();
    type("txtCoName", "Acme");
    find<QPlainTextEdit>("txtNote")->setPlainText(text);
    click("cmdApply");
    EXPECT_EQ(stored(1000, "notes"), QString(text).replace(u'\n', QLatin1String("\r\n")));

    click("lblEdit");
    EXPECT_EQ(find<QPlainTextEdit>("txtNote")->document()->blockCount(), 3);
    click("cmdApply");
    EXPECT_EQ(stored(1000, "notes"), QString(text).replace(u'\n', QLatin1String("\r\n")));
}

TEST_F(CustomerForm, NotesStopAtWhatCanBeReadBack)
{
    openNew();
    type("txtCoName", "Acme");
    auto *note = find<QPlainTextEdit>("txtNote");
    const QString most = QString(int(binding::kMemoLimit) - 2, u'a') + QStringLiteral("\nb");
    note->setPlainText(most);
    note->moveCursor(QTextCursor::Start);
    note->insertPlainText(QStringLiteral("typed"));
    EXPECT_EQ(note->toPlainText(), most); // the new text goes, not the old
    click("cmdApply");
    EXPECT_EQ(stored(1000, "notes"), most); // no room for the longer line end
    EXPECT_EQ(stored(1000, "company"), "Acme");
}

TEST_F(CustomerForm, AStampReplacesTheSelection)
{
    openForEdit(database.addCustomer({{"company", "Acme"}, {"notes", "before HERE after"}}));
    showPage(1);
    auto *note = find<QPlainTextEdit>("txtNote");
    EXPECT_TRUE(note->hasFocus());
    ASSERT_TRUE(note->find(QStringLiteral("HERE")));
    click("cmdDTStamp_Notes");
    EXPECT_EQ(note->toPlainText(),
              "before 3/14/2004 @ 3:05:09 PM by " + gDB.LoginName() + " after");
    EXPECT_TRUE(note->hasFocus());
    click("cmdApply");
    EXPECT_FALSE(find<QPushButton>("cmdDTStamp_Notes")->isEnabled());
}

TEST_F(CustomerForm, ContactsAlwaysFillFiftyRows)
{
    openNew();
    auto *grid = find<Grid>("grdContacts");
    EXPECT_EQ(grid->rows(), 50);
    EXPECT_EQ(grid->columns(), 5);
    EXPECT_EQ(grid->text(50, 0), "50");
    EXPECT_EQ(grid->text(0, 4), "Telephone");
    type("txtCoName", "Acme");
    click("cmdApply");
    EXPECT_EQ(stored(1000, "contacts"), emptyContacts());

    click("lblEdit");
    grid->setText(50, 5, QStringLiteral("last@x.com"));
    click("cmdApply");
    QString expected = emptyContacts();
    expected.insert(expected.size() - 1, QStringLiteral("last@x.com"));
    EXPECT_EQ(stored(1000, "contacts"), expected);
    grid->clearCells();
    click("cmdRefresh");
    EXPECT_EQ(grid->text(50, 5), "last@x.com");
}

TEST_F(CustomerForm, ContactsBeyondTheGridAreDropped)
{
    QString many;
    for (int row = 1; row <= 52; ++row)
        many += QStringLiteral("N%1\u00fe\u00fe\u00fe\u00fe\u00fesixth\r").arg(row);
    const qint32 id = database.addCustomer({{"company", "Acme"}, {"contacts", many}});
    openForEdit(id);
    EXPECT_EQ(find<Grid>("grdContacts")->text(50, 1), "N50");
    click("cmdApply");
    const QString now = stored(id, "contacts");
    EXPECT_EQ(now.count(u'\r'), 50);
    EXPECT_FALSE(now.contains(u"N51"));
    EXPECT_FALSE(now.contains(u"sixth"));
}

TEST_F(CustomerForm, ACellStillBeingTypedIntoIsSaved)
{
    openForEdit(database.addCustomer({{"company", "Acme"}}));
    showPage(1);
    auto *grid = find<Grid>("grdContacts");
    grid->setFocus();
    grid->setCurrentIndex(grid->model()->index(0, 0));
    QTest::keyClicks(grid, "B");
    QWidget *editor = QApplication::focusWidget();
    ASSERT_NE(editor, grid);
    QTest::keyClicks(editor, "ob");
    QTest::keyClick(editor, Qt::Key_A, Qt::AltModifier); // Apply, without leaving the cell
    QTRY_VERIFY_WITH_TIMEOUT(!form->inEditMode(), 2000);
    EXPECT_TRUE(stored(1000, "contacts").startsWith(u"Bob\u00fe"));
}

TEST_F(CustomerForm, LabelsCarryTheCustomNames)
{
    gDB.SetParamValue(QStringLiteral("nvncust.dbf_custom1"), QStringLiteral("R&D"));
    gDB.SetParamValue(QStringLiteral("nvncust.dbf_custno"), QStringLiteral("Account:"));
    open(database.addCustomer({{"company", "Acme"}}));
    EXPECT_EQ(find<QLabel>("lblCustNo")->text(), "Account:");
    EXPECT_EQ(find<QLabel>("lblCustom1")->text(), "R&&D:"); // shown as R&D
    EXPECT_EQ(find<QLabel>("lblCustom2")->text(), "Custom 2:");

    gDB.SetParamValue(QStringLiteral("nvncust.dbf_custno"), QString());
    click("cmdRefresh");
    EXPECT_EQ(find<QLabel>("lblCustNo")->text(), "Customer Number:");
}
