// The File commands and the advice on backing up.
#include "shell/frmMain.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Prompts.h"
#include "db/clsDB.h"
#include "shell/RecentFolders.h"

#include <QFileInfo>
#include <QMenu>

namespace
{

QString paragraphs(const QStringList &texts)
{
    return texts.join(QLatin1String("\n\n"));
}

QString newDatabaseExplanation()
{
    return paragraphs(
        {frmMain::tr("You are about to create a NEW %1 Database.").arg(app::title()),
         frmMain::tr("SHARED/NETWORK DATABASE: If you would like to share the new database with "
                     "other users on your Local Area Network, you may want to create this "
                     "database on a File Server or a Shared Network Directory that is accessible "
                     "by other users. While you are creating the new database, please note the "
                     "network directory location of the new database. Other users will need to "
                     "select this network directory location when they choose File, Open "
                     "Database... from their machines."),
         frmMain::tr("LOCAL DATABASE: If you are creating the new database for your exclusive "
                     "use, you may want to create the database on your local machine.")});
}

} // namespace

void frmMain::fileNew()
{
    guarded("frmMain_mnuFileNew_Click", [this] { createDatabase(); });
}

void frmMain::createDatabase()
{
    gSys.ShowMsg(newDatabaseExplanation());
    gSys.CreateDir(gDB.DBDefaultPath()); // may exist, or not be to be had
    const QString folder = prompts::pickFolder(
        tr("NEW DATABASE: Please select the Directory where you want to store the new %1 database:")
            .arg(app::title()),
        gDB.DBDefaultPath());
    if (folder.isEmpty())
        return;
    if (gDB.NewDB(folder)) {
        gSys.ShowMsg(
            tr("NEW DATABASE CREATED! Initial Login and Password is SYSOP (Multi-user version "
               "only)\n") +
            paragraphs(
                {tr("New %1 database has been created in:").arg(app::title()), folder,
                 tr("If you are sharing this data with other users, please note this directory "
                    "location. Other users will need to specify this location when opening the "
                    "database."),
                 BackupMsg(folder),
                 tr("Next you will login into the new database (Multi-user version only)...")}));
        gDB.OpenDB(folder);
    }
    SetUI();
}

void frmMain::fileOpen()
{
    guarded("frmMain_mnuFileOpen_Click", [this] {
        const QString folder = prompts::pickFolder(
            tr("EXISTING DATABASE: Please select the Directory that contains an existing %1 "
               "database:")
                .arg(app::title()),
            gDB.DBDefaultPath());
        if (folder.isEmpty())
            return;
        gDB.OpenDB(folder);
        SetUI();
    });
}

void frmMain::fillRecentFolders()
{
    QMenu *menu = menuNamed(QStringLiteral("mnuFileRecent"));
    menu->clear();
    int number = 0;
    for (const QString &folder : recentfolders::list()) {
        QString text = folder;
        text.replace(u'&', QLatin1String("&&"));
        QAction *entry = menu->addAction(u'&' + QString::number(++number) + u' ' + text);
        entry->setCheckable(true);
        entry->setChecked(gDB.IsOpen() && folder == gDB.DBPath());
        connect(entry, &QAction::triggered, this, [this, folder] { openRecent(folder); });
    }
}

void frmMain::openRecent(const QString &folder)
{
    guarded("frmMain_openRecent", [this, &folder] {
        if (gDB.IsOpen() && (folder == gDB.DBPath() || !gDB.CloseDB()))
            return;
        if (!gDB.OpenDB(folder) && !QFileInfo::exists(clsSystem::LocalPath(folder)))
            recentfolders::forget(folder);
        SetUI();
    });
}

void frmMain::fileClose()
{
    gDB.CloseDB();
    SetUI();
}

void frmMain::displayDataFolder()
{
    gSys.ShowFolder(gDB.DBPath());
}

void frmMain::fileExit()
{
    close();
}

QString frmMain::BackupMsg(const QString &dir) const
{
    QString folder = dir.isEmpty() ? gDB.DBPath() : dir;
    if (folder.isEmpty())
        folder = tr("[The data directory will be specified here once you create/open a Norvane "
                    "Database]");
    const QString title = app::title();
    return paragraphs(
        {tr("BACKING UP, COPYING OR MOVING YOUR DATABASE"),
         tr("In order to safe keep your %1 database in case of computer failure or data "
            "corruption we suggest that you periodically copy all %1 files AND sub-directories in "
            "the following directory:")
             .arg(title),
         folder,
         tr("to a removable media such as tape media, floppy disk, zip or jaz disk, CDR, tape or "
            "to another computer on your network. THIS IS THE ONLY WAY TO RECOVER YOUR DATA IN "
            "CASE YOUR DATABASE GETS CORRUPTED!"),
         tr("ALL %1 database files in the directory above must be BACKed up together and if "
            "needed, RESTOREd together.")
             .arg(title),
         tr("We suggest use of UPS (Uninterruptible Power Supply) for machines that access or "
            "host the database. Never reboot your machine while you are editing %1 data. Please "
            "consult your Network or System Administrator for advice on how to protect your %1 "
            "data.")
             .arg(title),
         tr("We suggest backing up data at the end of each day so the most you will loose in case "
            "of system failure is one day's work. Please consult YOUR Network Administrator to "
            "come up with a backup and disaster recovery scheme that suits your needs."),
         gDB.DBMSFiles()});
}
