// The start-up from the command line to the main window.
#include "common/base/Preferences.h"
#include "shell/Startup.h"
#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TempDatabase.h"
#include "support/TempPreferences.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

namespace
{

class StartupTest : public ::testing::Test
{
protected:
    StartupTest() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())); }
    ~StartupTest() override
    {
        if (before.isNull())
            qunsetenv("XDG_RUNTIME_DIR");
        else
            qputenv("XDG_RUNTIME_DIR", before);
    }

    QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir runtime;
    FakeHost machine;
    ScriptedPrompts person;
    TempPreferences preferences;
};

const auto pressOk = [](QWidget *login) { clickButton(login, "OKButton"); };

frmSplash *splashOnScreen()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *splash = qobject_cast<frmSplash *>(window);
        if (splash != nullptr && splash->isVisible())
            return splash;
    }
    return nullptr;
}

} // namespace

TEST_F(StartupTest, FirstStartShowsTheSplashThenAnEmptyMainWindow)
{
    bool splashed = false;
    bool mainHidden = false;
    Startup startup({});
    QTimer::singleShot(1500, &startup, [&] {
        splashed = splashOnScreen() != nullptr &&
                   splashOnScreen()->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        mainHidden = startup.mainWindow() != nullptr && !startup.mainWindow()->isVisible();
    });
    QElapsedTimer time;
    time.start();
    ASSERT_TRUE(startup.run());
    EXPECT_GE(time.elapsed(), 2990);
    EXPECT_TRUE(splashed);
    EXPECT_TRUE(mainHidden);
    EXPECT_EQ(splashOnScreen(), nullptr);
    EXPECT_TRUE(startup.mainWindow()->isVisible());
    EXPECT_FALSE(gDB.IsOpen());
    startup.mainWindow()->close();
}

TEST_F(StartupTest, TheLastFolderIsOpenedAgain)
{
    const TempDatabase database(TempDatabase::Start::Closed);
    SetPrefStr("db", database.path());
    Startup startup({});
    const DialogDriver login(pressOk);
    ASSERT_TRUE(startup.run());
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_TRUE(startup.mainWindow()->findChild<QAction *>("mnuFileClose")->isEnabled());
    startup.mainWindow()->close();
}

TEST_F(StartupTest, AFolderThatIsGoneIsToldAndTheProgramStaysUp)
{
    const QString folder = runtime.filePath("switched off");
    SetPrefStr("db", folder);
    person.expectText("OPEN FAILED!");
    Startup startup({});
    ASSERT_TRUE(startup.run());
    EXPECT_TRUE(startup.mainWindow()->isVisible());
    EXPECT_FALSE(gDB.IsOpen());
    EXPECT_EQ(GetPrefStr("db"), folder);
    startup.mainWindow()->close();
}

TEST_F(StartupTest, TheCommandLineGoesBeforeTheLastFolderAndIsRememberedWhole)
{
    const TempDatabase database(TempDatabase::Start::Closed);
    SetPrefStr("db", "/somewhere/else");
    Startup startup(QDir::current().relativeFilePath(database.path()));
    const DialogDriver login(pressOk);
    ASSERT_TRUE(startup.run());
    EXPECT_TRUE(gDB.IsOpen());
    EXPECT_EQ(GetPrefStr("db"), QDir::toNativeSeparators(database.path()));
    startup.mainWindow()->close();
}

TEST_F(StartupTest, AnUnexpectedFailureTakesTheSplashAwayAndGoesOn)
{
    machine.setComputerName("X");
    SetPrefStr("db", runtime.path());
    // The check of the folder fails in a way nobody planned for.
    prompts::backend().text = [](const prompts::Message &) { throw std::runtime_error("broken"); };
    person.expect("broken").title("Error");
    Startup startup({});
    EXPECT_TRUE(startup.run());
    EXPECT_TRUE(startup.mainWindow()->isVisible());
    startup.mainWindow()->close();
}

TEST_F(StartupTest, ARunningInstanceIsNamedAndRaisedAndTheSecondEnds)
{
    SingleInstance first;
    ASSERT_TRUE(first.begin());
    bool raised = false;
    QObject::connect(&first, &SingleInstance::raiseWanted, &first, [&] { raised = true; });
    person.expect("Norvane is already running!").kind(prompts::Kind::Warning);
    Startup startup({});
    EXPECT_FALSE(startup.run());
    EXPECT_EQ(startup.mainWindow(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return raised; }));
}
