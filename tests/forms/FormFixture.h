// A record window over a temporary database, driven as a person would.
#pragma once

#include "db/clsDB.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <memory>

template <class Form>
class FormFixture : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    // As the main window does.
    void open(std::unique_ptr<Form> made, qint32 rowid, bool edit)
    {
        form = std::move(made);
        form->Init(rowid, edit);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    template <class T>
    T *find(const char *name) const
    {
        T *control = form->template findChild<T *>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void click(const char *button) { QTest::mouseClick(find<QWidget>(button), Qt::LeftButton); }
    void type(const char *box, const QString &text) // replaces what a text box holds
    {
        auto *edit = find<QLineEdit>(box);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void choose(const char *combo, const QString &item)
    {
        auto *box = find<QComboBox>(combo);
        ASSERT_GE(box->findText(item), 0) << qPrintable(item);
        box->setCurrentText(item);
    }
    void showPage(int page) { find<QTabWidget>("tabs")->setCurrentIndex(page); }
    QString textOf(const char *box) const { return find<QLineEdit>(box)->text(); }

    // Closes the window whatever it holds.
    void discard()
    {
        if (form->inEditMode())
            person.expect("Do you wish to discard your changes (if any)?", Answer::Yes);
        form->close();
    }

    // Who has the record's mark; 0: nobody edits it.
    static qint32 markOf(schema::Table table, qint32 rowid)
    {
        qint32 user = -1;
        QString station;
        EXPECT_TRUE(gDB.GetUnderEditInfo(gDB.TablePath(table), schema::table(table).dataFile(),
                                         rowid, user, station));
        return user;
    }

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<Form> form;
};
