// What the Help menu opens, the Help Center and the tip of the day.
#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/ui/Help.h"
#include "db/clsDB.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/frmTip.h"
#include "shell/frmWelcome.h"

void frmMain::showHelp(int topic)
{
    ShowHelpTopic(topic);
}

void frmMain::HelpCenter()
{
    const QString tag = QStringLiteral("MAIN_HELP");
    if (IsFormLoaded(tag)) {
        BringFormToTop(tag);
        return;
    }
    const QList<WelcomeLink> links = {
        {QStringLiteral("lookup-customer"), tr("Look up a customer"), true,
         [this] { LookupCustomer(); }},
        {QStringLiteral("new-customer"), tr("Enter a new customer"), true,
         [this] { NewCustomer(); }},
        {QStringLiteral("tip"), tr("Tip of the day"), false, [this] { TipOfTheDay(); }},
        {QStringLiteral("overview"), tr("Product Overview"), false,
         [this] { helpProductOverview(); }},
        {QStringLiteral("tour"), tr("A tour in pictures"), false,
         [] { ShowHelpTopic(help::Tour); }},
        {QStringLiteral("tutorial"), tr("Tutorial"), false, [this] { helpTutorial(); }},
        {QStringLiteral("help"), tr("User Manual"), false, [this] { helpUserManual(); }},
        {QStringLiteral("properties"), tr("Specifications Sheet (pdf)"), false,
         [this] { helpSpecSheet(); }},
        {QStringLiteral("backup"), tr("How to backup your data?"), false, [this] { helpBackup(); }},
        {QStringLiteral("support"), tr("Support"), false, [] { gSys.GotoDVWebsite(); }},
    };
    showChild(new frmWelcome(links));
}

void frmMain::TipOfTheDay()
{
    const QString tag = QStringLiteral("TIPOFDAY");
    if (!IsFormLoaded(tag)) {
        auto *tip = new frmTip(this);
        tip->setAttribute(Qt::WA_DeleteOnClose);
        tip->show();
    }
    BringFormToTop(tag);
}

void frmMain::showStartupHelp()
{
    if (gDB.IsOpen() && welcomeWantedAtStartup())
        HelpCenter();
    if (tipWantedAtStartup())
        TipOfTheDay();
}

void frmMain::helpFAQs()
{
    gSys.GotoWebsite(app::website() + QLatin1String("/products/norvane/faqs/"));
}

void frmMain::helpProductOverview()
{
    ShowHelpTopic(help::ProductOverview);
}

void frmMain::helpSpecSheet()
{
    gSys.LaunchFile(app::programFolder() + QLatin1String("/norvane_specs.pdf"));
}

void frmMain::helpUserManual()
{
    ShowHelpContents();
}

void frmMain::helpTutorial()
{
    ShowHelpTopic(help::Tutorial);
}

void frmMain::helpSupport()
{
    const QString question = tr("Support for %1 can be obtained online at").arg(app::title()) +
                             u'\n' + app::website() + QLatin1String("\n\n") +
                             tr("Would you like to go to this website?");
    if (prompts::ask(question) == prompts::Answer::Yes)
        gSys.GotoDVWebsite();
}

void frmMain::helpBackup()
{
    gSys.ShowMsg(BackupMsg());
}

void frmMain::helpAbout()
{
    frmSplash about(this);
    about.exec();
}
