// The Help Center, the tip of the day, and the Help menu's documents.
#include "common/base/AppInfo.h"
#include "common/base/Preferences.h"
#include "common/ui/FormWindow.h"
#include "shell/frmTip.h"
#include "shell/frmWelcome.h"
#include "shell/MainWindowFixture.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace
{

class HelpWindows : public MainWindow
{
protected:
    static QString tipText(const QWidget &tip)
    {
        return tip.findChild<QLabel *>(QStringLiteral("lblTipText"))->text();
    }
    QString writeTips(const QByteArray &bytes)
    {
        QFile file(folder.filePath(QStringLiteral("tips.txt")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir folder;
};

TEST_F(HelpWindows, TipsAreTheLinesOfAFile)
{
    frmTip tip;
    struct Case {
        QByteArray file;
        QStringList shown;
    };
    const QString longLine = QString(200000, u'x');
    const Case cases[] = {
        {"only one\r\n", {QStringLiteral("only one")}},
        {"a\n\nb", {QStringLiteral("a"), QString(), QStringLiteral("b")}}, // an empty line counts
        {longLine.toUtf8(), {longLine}},
        {"caf\xC3\xA9 & <b>\n", {QString::fromUtf8("caf\xC3\xA9 & <b>")}},
    };
    for (const Case &tips : cases) {
        ASSERT_TRUE(tip.LoadTips(writeTips(tips.file)));
        QStringList seen;
        for (int at = 0; at < 100; ++at) {
            tip.findChild<QPushButton *>(QStringLiteral("cmdNextTip"))->click();
            if (!seen.contains(tipText(tip)))
                seen.append(tipText(tip));
        }
        seen.sort();
        QStringList expected = tips.shown;
        expected.sort();
        EXPECT_EQ(seen, expected);
    }
    for (const QString &bad : {writeTips(""), folder.filePath(QStringLiteral("none"))}) {
        EXPECT_FALSE(tip.LoadTips(bad));
        EXPECT_EQ(
            tipText(tip),
            QStringLiteral("Create a text file named TIPOFDAY.TXT using NotePad with 1 tip per "
                           "line. Then place it in the same directory as the application. "));
    }
}

TEST_F(HelpWindows, BothComeAtTheStartUntilToldNotTo)
{
    openWithDatabase();
    SetPrefStr(QStringLiteral("TipsShowAtStartup"), QStringLiteral("rubbish"));
    main->showStartupHelp();
    ASSERT_TRUE(IsFormLoaded(QStringLiteral("TIPOFDAY")));
    ASSERT_TRUE(IsFormLoaded(QStringLiteral("MAIN_HELP")));
    main->HelpCenter(); // one at most
    EXPECT_EQ(openTags().count(QStringLiteral("MAIN_HELP")), 1);

    FormWindow *tip = GetFormWithTag(QStringLiteral("TIPOFDAY"));
    tip->findChild<QCheckBox *>()->setChecked(false);
    EXPECT_EQ(GetPrefLong(QStringLiteral("TipsShowAtStartup")), 1); // at once
    FormWindow *welcome = GetFormWithTag(QStringLiteral("MAIN_HELP"));
    welcome->findChild<QCheckBox *>()->setChecked(true);
    EXPECT_EQ(GetPrefLong(QStringLiteral("WelcomeShowAtStartup")), 0);
    welcome->close();
    EXPECT_EQ(GetPrefLong(QStringLiteral("WelcomeShowAtStartup")), 1); // with the window
    tip->close();
    main->showStartupHelp();
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("TIPOFDAY")));
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("MAIN_HELP")));
}

TEST_F(HelpWindows, TheHelpCenterTellsWhereOneIsAndLeadsOn)
{
    openWithDatabase();
    main->HelpCenter();
    FormWindow *welcome = GetFormWithTag(QStringLiteral("MAIN_HELP"));
    EXPECT_EQ(welcome->windowTitle(), QStringLiteral("Help Center"));
    EXPECT_EQ(welcome->findChild<QLabel *>(QStringLiteral("lblLogin"))->text(),
              QStringLiteral("You are logged in as 'SYSOP' from machine 'STATION1'"));
    EXPECT_TRUE(welcome->findChild<QLabel *>(QStringLiteral("lblDatabase"))
                    ->text()
                    .startsWith(QLatin1String("You are accessing Norvane database located at: ")));
    int links = 0;
    for (QLabel *label : welcome->findChildren<QLabel *>()) {
        if (label->accessibleName() != QLatin1String("Enter a new customer"))
            continue;
        ++links;
        Q_EMIT label->linkActivated(QStringLiteral("#"));
    }
    EXPECT_EQ(links, 1);
    EXPECT_TRUE(IsFormLoaded(QStringLiteral("C-1")));
}

TEST_F(HelpWindows, TheMenuOpensItsDocuments)
{
    openWithoutDatabase();
    choose("mnuHelpFAQs");
    choose("mnuHelpSpecSheet");
    ASSERT_EQ(machine.opened().size(), 2);
    EXPECT_EQ(machine.opened()[0], app::website() + QLatin1String("/products/norvane/faqs/"));
    QFile sheet(machine.opened()[1]);
    ASSERT_TRUE(sheet.open(QIODevice::ReadOnly)) << qPrintable(sheet.fileName());
    EXPECT_TRUE(sheet.readAll().startsWith("%PDF-"));
}

} // namespace
