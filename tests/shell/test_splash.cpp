// The splash screen, and the same form as the About box.
#include "common/base/AppInfo.h"
#include "shell/frmSplash.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

namespace
{

QLabel *label(const frmSplash &splash, const char *name)
{
    return splash.findChild<QLabel *>(QLatin1String(name));
}

void clickOn(const QLabel *target)
{
    QTest::mouseClick(target->window()->windowHandle(), Qt::LeftButton, {},
                      target->mapTo(target->window(), target->rect().center()));
}

} // namespace

TEST(Splash, ClicksDoNothingDuringStartUpAndTheTimeIsKept)
{
    const FakeHost machine;
    frmSplash splash;
    splash.setSmartUnload(true);
    QElapsedTimer time;
    time.start();
    splash.show();
    clickOn(label(splash, "lblWebsite"));
    clickOn(label(splash, "lblTitle"));
    QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(machine.opened().isEmpty());
    EXPECT_FALSE(splash.minimumTimePassed());
    EXPECT_TRUE(QTest::qWaitFor([&] { return splash.minimumTimePassed(); }, 6000));
    EXPECT_GE(time.elapsed(), 2990);
    EXPECT_TRUE(splash.isVisible());
}

TEST(Splash, AsAboutBoxAnyClickClosesIt)
{
    const FakeHost machine;
    for (const char *name : {"lblTitle", "lblVersion", "imgIcon"}) {
        frmSplash about;
        about.show();
        clickOn(label(about, name));
        EXPECT_FALSE(about.isVisible()) << name;
    }
    frmSplash about;
    about.show();
    QTest::mouseClick(about.windowHandle(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_FALSE(about.isVisible());
    EXPECT_TRUE(machine.opened().isEmpty());
}

TEST(Splash, TheWebSiteOpensFromTheAboutBox)
{
    const FakeHost machine;
    frmSplash about;
    about.show();
    clickOn(label(about, "lblWebsite"));
    EXPECT_EQ(machine.opened(), QStringList(app::website()));
}

TEST(Splash, NamesTheProgramAndItsVersion)
{
    const frmSplash splash;
    EXPECT_EQ(label(splash, "lblTitle")->text(), app::title());
    EXPECT_EQ(label(splash, "lblCompany")->text(), app::company());
    EXPECT_EQ(label(splash, "lblPlatform")->text(), "for Windows");
    EXPECT_EQ(label(splash, "lblVersion")->text(),
              QStringLiteral("Multi-User version %1.%2  Rev. %3")
                  .arg(app::versionMajor())
                  .arg(app::versionMinor())
                  .arg(app::versionRevision()));
}
