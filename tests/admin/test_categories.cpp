// The editor of lookup lists, worked as a person would.
#include "admin/frmEditCategories.h"

#include "common/ui/GuiDialogs.h"
#include "common/ui/ListView.h"
#include "common/ui/PrintDoor.h"
#include "db/TableUse.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace norvane::engine;
using prompts::Answer;
using prompts::Kind;

namespace
{

constexpr qint32 QuickEntries = 200;
const QString Key = u"N%1"_s;

class ListEditor : public ::testing::Test
{
protected:
    void open(qint32 type)
    {
        form = std::make_unique<frmEditCategories>();
        form->Init(*lookupList(type));
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
        lv = form->findChild<ListView *>(u"lv"_s);
    }
    QPushButton *button(const char *name) const
    {
        return form->findChild<QPushButton *>(QLatin1String(name));
    }
    void click(const char *name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    QStringList texts() const
    {
        QStringList all;
        for (int row = 0; row < lv->itemCount(); ++row)
            all += lv->itemText(row, 0);
        return all;
    }
    // Types over the label being edited; what the box then holds.
    QString type(const QString &text, int endKey = Qt::Key_Return) const
    {
        auto *box = lv->findChild<QLineEdit *>();
        EXPECT_NE(nullptr, box);
        if (box == nullptr)
            return {};
        box->selectAll();
        box->insert(text);
        QString typed = box->text();
        QTest::keyClick(box, static_cast<Qt::Key>(endKey));
        QTest::qWait(0); // the editor goes when events are let through
        return typed;
    }
    void rename(qint32 rowid, const QString &text, int endKey = Qt::Key_Return) const
    {
        ASSERT_TRUE(LvSelectItem(lv, Key.arg(rowid)));
        QTest::keyClick(lv, Qt::Key_F2);
        type(text, endKey);
    }
    QString shown(qint32 rowid) const { return lv->itemText(lv->rowOfKey(Key.arg(rowid)), 0); }
    QString stored(qint32 rowid) const
    {
        return db.stored(schema::Table::Category, rowid, u"desc"_s);
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempPreferences preferences;
    TempDatabase db;
    std::unique_ptr<frmEditCategories> form;
    ListView *lv = nullptr;
};

} // namespace

TEST_F(ListEditor, EveryListKnowsTheRecordsThatUseItsItems)
{
    const struct {
        qint32 type;
        QString recordType;
        const char *field;
    } uses[] = {
        {1, u"_customer"_s, "custcat"},     {2, u"_ps"_s, "psid"},
        {2, u"_issue"_s, "psid"},           {3, u"_customer"_s, "state"},
        {4, u"_customer"_s, "country"},     {101, u"_issue"_s, "status"},
        {102, u"_issue"_s, "priority"},     {103, u"_ps"_s, "conttype"},
        {104, u"_ps"_s, "contdur"},         {105, u"_issue"_s, "issuecat"},
        {106, u"_issueaction"_s, "action"},
    };
    for (const auto &use : uses) {
        SCOPED_TRACE(use.field);
        const qint32 item = db.addListItem(use.type, u"in use"_s);
        db.add(use.recordType, {{use.field, item}});
        open(use.type);
        const QString name = lv->model()->headerData(0, Qt::Horizontal).toString();
        EXPECT_EQ(form->windowTitle(), u"Edit %1 - 3/14/2004 @ 3:05:09 PM"_s.arg(name));
        EXPECT_FALSE(button("cmdDelete")->isEnabled());
        ASSERT_TRUE(LvSelectItem(lv, Key.arg(item)));
        person.expect(u"'in use' is under use and cannot be deleted!"_s)
            .kind(Kind::Warning)
            .title(u"Norvane"_s);
        click("cmdDelete");
        EXPECT_EQ(u"in use"_s, stored(item));
    }
    for (const qint32 type : {0, 5, 107, 199, 206})
        EXPECT_FALSE(lookupList(type)) << type;
    EXPECT_EQ(u"Quick Entry List"_s, lookupList(205)->name);
    EXPECT_EQ(u"LISTMGMT_CUSTOMFIELDS"_s, lookupList(205)->helpKey);
}

TEST_F(ListEditor, NewItemsAndLabelsAreStoredAsTheyAreShown)
{
    open(QuickEntries);
    click("cmdNew");
    const QString first = lv->itemText(0, 0);
    EXPECT_TRUE(first.startsWith(u"Untitled "_s));
    EXPECT_EQ(QString(40, u'x'), type(QString(50, u'x')));
    const qint32 id = lv->itemKey(0).mid(1).toInt();
    EXPECT_EQ(QString(40, u'x'), stored(id));
    EXPECT_EQ(QString(40, u'x'), shown(id));

    click("cmdNew");
    const qint32 second = lv->itemKey(1).mid(1).toInt();
    EXPECT_EQ(first.mid(9).toInt() + 1, lv->itemText(1, 0).mid(9).toInt());
    type(u"abandoned"_s, Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(shown(second), stored(second));
    EXPECT_EQ(u"200"_s, db.stored(schema::Table::Category, second, u"type"_s));

    const struct {
        QString typed, kept;
    } labels[] = {
        {u"  two  words  "_s, u"two  words"_s},
        {u"    "_s, u"two  words"_s},
        {QString(), u"two  words"_s},
        {u"\u20ac \u0160 \u00ff"_s, u"\u20ac \u0160 \u00ff"_s},
        {u"\u0142\u4e2d a\tb"_s, u"?? a b"_s},
    };
    for (const auto &label : labels) {
        rename(second, label.typed);
        EXPECT_EQ(label.kept, stored(second));
        EXPECT_EQ(label.kept, shown(second));
    }
    QString all; // what one byte can hold, 40 characters at a time
    for (char16_t code = 0x20; code < 0x100; ++code)
        if (code < 0x7f || code > 0xa0)
            all += QChar(code);
    for (qsizetype at = 0; at < all.size(); at += 40) {
        const QString text = all.mid(at, 40).trimmed();
        rename(second, text);
        EXPECT_EQ(text, stored(second));
    }

    // What is being typed counts when another button or the window's end comes in between.
    LvSelectItem(lv, Key.arg(id));
    QTest::keyClick(lv, Qt::Key_Return);
    lv->findChild<QLineEdit *>()->setText(u"typed"_s);
    form->reject();
    EXPECT_EQ(u"typed"_s, stored(id));
}

TEST_F(ListEditor, DeletingAsksAndLeavesWhatIsInUse)
{
    const qint32 a = db.addListItem(3, u"aaa"_s);
    const qint32 b = db.addListItem(3, u"aab"_s);
    const qint32 used = db.addListItem(3, u"aac"_s);
    db.addCustomer({{"lastname", u"Doe"_s}, {"state", used}});
    open(3);
    LvSelectItem(lv, Key.arg(a));
    const auto ask = [this](const QString &text, Answer answer, const QString &title) {
        person.expect(text, answer)
            .title(title)
            .kind(Kind::Question)
            .buttons({Answer::Yes, Answer::No, Answer::Cancel})
            .preset(Answer::No);
    };
    const QString question = u"Are you sure you want to delete '%1'?"_s;
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        ask(question.arg(u"aaa"_s), answer, u"Delete Confirmation"_s);
        click("cmdDelete");
        EXPECT_EQ(u"aaa"_s, stored(a));
    }
    ask(question.arg(u"aaa"_s), Answer::Yes, u"Delete Confirmation"_s);
    lv->setFocus();
    QTest::keyClick(lv, Qt::Key_Delete);
    EXPECT_EQ(QString(), stored(a));
    EXPECT_EQ(-1, lv->rowOfKey(Key.arg(a)));
    EXPECT_EQ(Key.arg(b), LvGetSelectedItemKey(lv));

    ask(u"Are you sure you want to delete ALL items in this list?"_s, Answer::No,
        u"Delete ALL Confirmation"_s);
    click("cmdDeleteAll");
    EXPECT_EQ(u"aab"_s, stored(b));
    const qint32 unseen = db.addListItem(3, u"added elsewhere"_s);
    ask(u"Are you sure you want to delete ALL items in this list?"_s, Answer::Yes,
        u"Delete ALL Confirmation"_s);
    click("cmdDeleteAll");
    EXPECT_EQ((QStringList{u"aac"_s, u"added elsewhere"_s}), texts());
    EXPECT_NE(QString(), stored(unseen));
    EXPECT_FALSE(machine.isBusy());

    // One that another station holds stays, which is told once; the rest goes.
    const qint32 held = db.addListItem(QuickEntries, u"held"_s);
    db.addListItem(QuickEntries, u"free"_s);
    open(QuickEntries);
    {
        auto other = db.otherStation();
        TableUse rows(*other, other->CategoryTable());
        rows.select(u"rowid"_s);
        ASSERT_TRUE(rows.seek(held));
        const RowLock lock(rows.handle());
        code4lockDelay(gDB.CBEngine(), 1);
        ask(u"ALL items"_s, Answer::Yes, u"Delete ALL Confirmation"_s);
        person.expect(u"RECORD LOCKED: Unable to Delete from "_s).kind(Kind::Critical);
        click("cmdDeleteAll");
        EXPECT_EQ(QStringList{u"held"_s}, texts());
    }
    ASSERT_TRUE(gDB.DeleteRecord(held, gDB.CategoryTable()));
    open(QuickEntries);
    EXPECT_FALSE(button("cmdDeleteAll")->isEnabled());

    // A long list shows how far it is and can be stopped.
    const clsDB::Handle table = gDB.OpenTable(gDB.CategoryTable());
    for (int item = 0; item < 150; ++item)
        gDB.AddCategory(QString::number(item), QuickEntries, table);
    gDB.CloseTable(table);
    open(QuickEntries);
    ask(u"ALL items"_s, Answer::Yes, u"Delete ALL Confirmation"_s);
    prompts::backend().progress = &guidialogs::progress; // the real one, which can be clicked
    QTimer::singleShot(0, form.get(), [this] {
        EXPECT_FALSE(form->close()); // not in the middle
        EXPECT_FALSE(form->isEnabled());
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->inherits("frmProgress") && window->isVisible())
                clickButton(window, u"cmdCancel"_s);
    });
    click("cmdDeleteAll");
    EXPECT_EQ(150, lv->itemCount()); // the click came before the first was gone
    EXPECT_TRUE(form->isEnabled());
}

TEST_F(ListEditor, WhatOtherStationsDoIsToldAndLosesNothing)
{
    const qint32 gone = db.addListItem(1, u"aaa"_s);
    const qint32 held = db.addListItem(1, u"aab"_s);
    open(1);
    code4lockDelay(gDB.CBEngine(), 1);
    auto other = db.otherStation();
    ASSERT_TRUE(other->DeleteRecord(gone, other->CategoryTable()));
    const QString message =
        u"Unable to update this item in table nvncat.dbf! It may have been deleted by another "
        u"user. Press Refresh to get the latest list."_s;
    person.expect(message).kind(Kind::Critical);
    rename(gone, u"typed"_s);
    EXPECT_EQ(message, person.texts().last());
    EXPECT_EQ(u"aaa"_s, shown(gone));
    {
        TableUse rows(*other, other->CategoryTable());
        rows.select(u"rowid"_s);
        ASSERT_TRUE(rows.seek(held));
        const RowLock lock(rows.handle());
        person.expect(u"RECORD LOCKED: Unable to update nvncat.dbf!"_s).kind(Kind::Critical);
        rename(held, u"typed"_s);
        EXPECT_EQ(u"aab"_s, shown(held));
    }
    rename(held, u"aac"_s);
    machine.advance(std::chrono::seconds(1));
    click("cmdRefresh");
    EXPECT_EQ(u"aac"_s, texts().first());
    EXPECT_EQ(Key.arg(held), LvGetSelectedItemKey(lv));
    EXPECT_TRUE(form->windowTitle().endsWith(u"3:05:10 PM"_s));

    // The table is not there any more: each command says so, and the list stays as it was.
    const int count = lv->itemCount();
    ASSERT_TRUE(QFile::rename(gDB.CategoryTable(), gDB.CategoryTable() + u"x"));
    for (const char *command : {"cmdRefresh", "cmdNew"}) {
        person.expect(u"Unable to open: "_s + gDB.CategoryTable());
        click(command);
    }
    person.expect(u"Unable to open: "_s + gDB.CategoryTable());
    rename(held, u"typed"_s);
    EXPECT_EQ(count, lv->itemCount());
    EXPECT_EQ(u"aac"_s, shown(held));
    ASSERT_TRUE(QFile::rename(gDB.CategoryTable() + u"x", gDB.CategoryTable()));
}

TEST_F(ListEditor, TheCommandAsksForTheRightAndShowsTheList)
{
    DialogDriver driver([this](QWidget *dialog) {
        EXPECT_TRUE(dialog->windowTitle().startsWith(u"Edit Countries - "_s));
        QTest::keyClick(dialog, Qt::Key_F1);
        EXPECT_EQ(board.calls(), QStringList{u"showHelp 1060"_s});
        QString printed;
        const auto options = std::exchange(printing::backend().options,
                                           [&printed](const printing::ListRequest &request)
                                               -> std::optional<printing::ListOptions> {
                                               printed = request.title;
                                               return std::nullopt;
                                           });
        clickButton(dialog, u"cmdPrint"_s);
        printing::backend().options = options;
        EXPECT_EQ(dialog->windowTitle(), printed);
        clickButton(dialog, u"cmdClose"_s);
    });
    editLookupList(4, nullptr);
    editLookupList(77, nullptr);
    db.addUser(u"clerk"_s, u"111110"_s + QString(24, u'1'));
    gDB.CloseDB();
    db.loginAs(u"clerk"_s, u"clerk"_s);
    person.expectText(u"Sorry, you are not permitted to perform this action."_s);
    editLookupList(4, nullptr); // shows no window
}
