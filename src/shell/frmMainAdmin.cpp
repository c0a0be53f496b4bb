// The commands of those who look after the database: users, passwords, names of fields,
// import, purge, maintenance and statistics.
#include "shell/frmMain.h"

#include "admin/clsDBUtil.h"
#include "admin/frmChangePWD.h"
#include "admin/frmDataImport.h"
#include "admin/frmPreferences.h"
#include "admin/frmPurgeIssues.h"
#include "admin/frmUsers.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/ui/FormWindow.h"
#include "db/clsDB.h"

#include <QScopedValueRollback>

void frmMain::ChangePassword()
{
    if (!gDB.MayWrite())
        return;
    const QString login = gDB.LoginName();
    frmChangePWD current(this);
    current.EnterMode(tr("*CURRENT* Password for '%1'").arg(login), gDB.password());
    if (current.exec() != QDialog::Accepted)
        return;
    frmChangePWD wanted(this);
    wanted.NewMode(tr("*NEW* Password for '%1'").arg(login));
    if (wanted.exec() != QDialog::Accepted || !gDB.SetPassword(gDB.LoginID(), wanted.password()))
        return;
    gDB.setPassword(wanted.password().toLower());
    prompts::inform(tr("Your password has been changed!"));
}

void frmMain::UserManagement()
{
    if (gDB.Perm_DBAdmin())
        frmUsers(this).exec();
}

void frmMain::Customizations()
{
    if (!gDB.Perm_DBAdmin())
        return;
    frmPreferences(this).exec();
    SetCustomMenuLabels();
}

void frmMain::ImportData()
{
    if (gDB.Perm_DBAdmin())
        frmDataImport(this).exec();
}

void frmMain::PurgeOldIssues()
{
    if (!gDB.Perm_DBAdmin())
        return;
    if (IsFormLoaded(frmPurgeIssues::Tag))
        BringFormToTop(frmPurgeIssues::Tag);
    else
        showChild(new frmPurgeIssues(BackupMsg()));
}

// Its files are needed alone, and an open window could be about to save to one of them.
void frmMain::databaseMaintenance()
{
    if (gDB.Perm_DBAdmin() && UnloadAll(QStringLiteral("MAINFORM")))
        clsDBUtil::DlgDBMaintenance(this, gDB.DataFilePaths());
}

void frmMain::addBulkIssues()
{
    if (gDB.Perm_DBAdmin() && UnloadAll(QStringLiteral("MAINFORM")))
        gDB.AddBulkIssues();
}

// Window events run while it counts; a second count must not begin inside the first.
void frmMain::showStatistics()
{
    if (m_counting || !gDB.Perm_DBAdmin())
        return;
    const QScopedValueRollback counting(m_counting, true);
    guarded("frmMain_mnuViewDatabaseAdminStatistics_Click", [this] { countRecords(); });
}

void frmMain::countRecords()
{
    const struct {
        QString table;
        QString text;
    } counted[] = {{gDB.CustomerTable(), tr(" Customers")},
                   {gDB.IssuesTable(), tr(" Issues")},
                   {gDB.ReportTable(), tr(" Reports")},
                   {gDB.CategoryTable(), tr(" Lookup List Items")},
                   {gDB.UserTable(), tr(" Users")}};
    WaitDlg wait;
    gSys.WaitDlgShow(wait, tr("Database Statistics"), tr("Counting records. Please wait..."), false,
                     true);
    QStringList lines{tr("DATABASE STATISTICS [%1]").arg(gDB.DBPath()), QString()};
    bool stopped = false;
    for (const auto &[table, text] : counted) {
        const qint32 count = gDB.GetRecCountFast(table, QStringLiteral("rowid"));
        lines += u"   " + (count < 0 ? QString(u'?') : gSys.CommafyNoDec(count)) + text;
        host().pumpEvents();
        stopped = wait->cancelled() || !gDB.IsOpen();
        if (stopped)
            break;
    }
    gSys.WaitDlgRemove(wait);
    lines += {QString(), tr("Please note this count may include deleted records as well.")};
    if (!stopped)
        gSys.ShowMsg(lines.join(u'\n'));
}
