// The main window over a temporary database and preferences, with the person scripted.
#pragma once

#include "shell/frmMain.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QAction>

#include <memory>

class FormWindow;
class QMdiArea;

class MainWindow : public ::testing::Test
{
protected:
    using Answer = prompts::Answer;

    void openWithoutDatabase();
    void openWithDatabase(); // logged in as SYSOP

    template <class T>
    T *find(const char *name) const
    {
        T *found = main->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    bool enabled(const char *action) const { return find<QAction>(action)->isEnabled(); }
    void choose(const char *action) { find<QAction>(action)->trigger(); }
    bool menuShown(const char *menu) const;
    QStringList statusTexts() const;
    QMdiArea *area() const;
    // The one open window of that class; fails the test when there is none.
    static FormWindow *window(const char *className);
    static QStringList openTags();

    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
    std::unique_ptr<TempDatabase> database;
    std::unique_ptr<frmMain> main;
};
