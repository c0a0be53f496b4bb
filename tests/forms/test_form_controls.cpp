// The smaller controls that record forms are made of.
#include "common/form/frmUnderEditMsg.h"
#include "common/form/ListSinks.h"
#include "common/form/SetLabels.h"
#include "common/form/StatisticCtl.h"
#include "common/ui/ListView.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

TEST(UnderEditMsg, SaysWhoEditsWhereAndDefaultsToLater)
{
    RecordingSwitchboard board;
    DialogDriver driver([&board](QWidget *dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Record Currently Under Edit");
        EXPECT_EQ(dialog->findChild<QLabel *>(QStringLiteral("lblMsg"))->text(),
                  "The record you are trying to edit is currently being edited by user '%1' from "
                  "machine 'DESK 7'\n\nWhat would you like to do?");
        auto *later = dialog->findChild<QPushButton *>(QStringLiteral("CancelButton"));
        EXPECT_EQ(later->text(), "I will try &later ");
        EXPECT_TRUE(later->isDefault());
        EXPECT_EQ(dialog->findChild<QPushButton *>(QStringLiteral("OKButton"))->text(),
                  "Edi&t the record anyway");
        QTest::keyClick(dialog, Qt::Key_F1);
        EXPECT_EQ(board.calls(), QStringList{QStringLiteral("showHelp 1050")});
        QTest::keyClick(later, Qt::Key_Return);
    });
    EXPECT_FALSE(frmUnderEditMsg::ask(QStringLiteral("%1"), QStringLiteral("DESK 7")));
    DialogDriver anyway([](QWidget *dialog) { clickButton(dialog, QStringLiteral("OKButton")); });
    EXPECT_TRUE(frmUnderEditMsg::ask(QStringLiteral("jane"), QStringLiteral("DESK 7")));
    DialogDriver escape([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_FALSE(frmUnderEditMsg::ask(QStringLiteral("jane"), QStringLiteral("DESK 7")));
}

TEST(StatisticCtl, KeepsItsFieldsWhenTheRecordCannotBeRead)
{
    FakeHost machine;
    ScriptedPrompts person;
    const TempDatabase database;
    StatisticCtl control;
    control.SetValue(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c"));
    person.expect("Unable to read row_id 77");
    control.Init(gDB.CustomerTable(), QStringLiteral("nvncust.dbf"), 77);
    EXPECT_EQ(control.ModifiedBy() + control.ModifiedOn() + control.ModifiedAt(), "abc");
    control.Clear();
    EXPECT_EQ(control.ModifiedBy() + control.ModifiedOn() + control.ModifiedAt(), "");
}

TEST(ComboSink, FillingChoosesNothing)
{
    QComboBox combo;
    ComboSink sink(&combo);
    sink.addItem(QStringLiteral("One"), 1001);
    sink.addItem(QStringLiteral("Two"), 1002);
    EXPECT_EQ(sink.currentId(), -1);
    sink.selectId(1002);
    EXPECT_EQ(combo.currentText(), "Two");
    sink.selectId(5); // not there: stays
    EXPECT_EQ(sink.currentId(), 1002);
    sink.addItem(QStringLiteral("Three"), 1003);
    EXPECT_EQ(sink.currentId(), 1002);
    sink.clear();
    EXPECT_EQ(sink.currentId(), -1);
}

TEST(ListViewSink, ItemsCarryTheirIdsAsKeys)
{
    ListView list;
    list.setColumns({{QStringLiteral("Name"), QStringLiteral("N")}});
    ListViewSink sink(&list);
    EXPECT_EQ(sink.currentId(), -1);
    sink.beginLoad();
    sink.addItem(QStringLiteral("One"), 1001);
    sink.addItem(QStringLiteral("Two"), 1002);
    sink.endLoad();
    sink.selectId(1002);
    EXPECT_EQ(sink.currentId(), 1002);
    EXPECT_EQ(LvGetSelectedItemKey(&list), "N1002");
}

TEST(LabelCaption, IsWhatAPersonReads)
{
    QWidget field;
    QLabel label(QStringLiteral("Co&mpany && Sons:"));
    EXPECT_EQ(labelCaption(&label), "Co&mpany && Sons:"); // no field, no access key
    label.setBuddy(&field);
    EXPECT_EQ(labelCaption(&label), "Company & Sons:");
}
