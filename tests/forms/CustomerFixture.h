// A customer window over a temporary database, driven as a person would.
#pragma once

#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include <memory>

class CustomerForm : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    // Opens the window as the main window does.
    void open(qint32 rowid, bool edit = false);
    void openNew() { open(-1, true); }
    // An existing customer in edit mode.
    void openForEdit(qint32 rowid);

    template <class T>
    T *find(const char *name) const
    {
        T *control = form->findChild<T *>(QLatin1String(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void click(const char *button);
    void type(const char *box, const QString &text); // replaces what a text box holds
    void choose(const char *combo, const QString &item);
    void showPage(int page);

    // What the customer's row holds, read past the window.
    QString stored(qint32 rowid, const char *field) const;
    static qint32 markOwner(qint32 rowid); // 0: nobody edits it

    FakeHost machine;
    ScriptedPrompts person;
    RecordingSwitchboard board;
    TempDatabase database;
    std::unique_ptr<frmCustomer> form;
};
