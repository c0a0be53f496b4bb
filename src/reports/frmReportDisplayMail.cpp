// What leaves a report of customers for the mail: messages to all of them, and the mail merge file.
#include "reports/frmReportDisplay.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/Switchboard.h"
#include "db/report/MailMerge.h"
#include "db/TableUse.h"

namespace
{

// A progress window with Cancel over the rows of a report.
class RowProgress
{
public:
    RowProgress(const QString &title, const QString &message)
    {
        gSys.WaitDlgShow(m_wait, title, message, false, true);
        host().pumpEvents();
    }
    ~RowProgress() { gSys.WaitDlgRemove(m_wait); }
    RowProgress(const RowProgress &) = delete;
    RowProgress &operator=(const RowProgress &) = delete;

    // False once Cancel was pressed.
    bool step()
    {
        if (++m_done % 100 == 0)
            host().pumpEvents();
        return !(m_wait && m_wait->cancelled());
    }

private:
    WaitDlg m_wait;
    int m_done = 0;
};

struct Addresses {
    QStringList good;
    int bad = 0;
    bool complete = false; // neither cancelled nor without the table
};

Addresses addressesOf(const ReportTable &report)
{
    Addresses found;
    const TableUse customers(gDB, gDB.CustomerTable());
    if (!customers)
        return found;
    RowProgress progress(frmReportDisplay::tr("Customer Email"),
                         frmReportDisplay::tr("Retrieving email addresses. Please wait..."));
    for (const ReportTable::Row &row : report.rows) {
        const QString address = gDB.GetCustomerEmail(row.rowid, customers.handle());
        if (!address.isEmpty() && clsSystem::EmailAddressIsValid(address))
            found.good.append(address);
        else
            ++found.bad;
        if (!progress.step())
            return found;
    }
    found.complete = true;
    return found;
}

} // namespace

void frmReportDisplay::email()
{
    if (!gDB.Perm_ReportsMailEmail())
        return;
    const Addresses found =
        guarded("frmReportDisplay_cmdEmail_Click", Addresses(), [this]() -> Addresses {
            const BusyWindow oneAtATime(this);
            return addressesOf(report());
        });
    if (!found.complete)
        return;
    if (found.bad > 0) {
        const QString notice = tr("Email addresses for %1 out of %2 customers either do not exist "
                                  "or are invalid.")
                                   .arg(found.bad)
                                   .arg(report().rows.size());
        if (found.good.isEmpty()) {
            prompts::warn(notice);
            return;
        }
        if (prompts::ask(notice + tr(" Do you wish to continue?")) != prompts::Answer::Yes)
            return;
    }
    const QString to = found.good.join(QStringLiteral(", "));
    if (!switchboard().SendMail(to, tr("<<Verify Email Address and Enter Subject>>"), {}))
        clsSystem::ShowMsg(tr("Here's a list of email addresses for the displayed customers:") +
                           clsSystem::CRLF(2) + to);
}

void frmReportDisplay::mailMerge()
{
    if (!gDB.Perm_ReportsMailEmail())
        return;
    clsSystem::ShowMsg(
        app::title() +
        tr(" allows you to create a data file in DBF/MS FoxPro-compatible format for the "
           "customers displayed on this report. The data file created can be used with a mail "
           "merge capable program such as Microsoft Word to create customized letters, labels and "
           "envelopes. Please consult the documentation for your mail merge capable program (such "
           "as Microsoft Word) on how to create mail merged documents from a DBF/MS "
           "FoxPro-compatible data file. Please note the FILE TYPE created is 'MS FoxPro File'. "
           "DATA SOURCE is 'FoxPro Files - Word via ODBC(*.dbf)'."));
    if (prompts::ask(tr("Would you like to create the mail merge data file now?")) !=
        prompts::Answer::Yes)
        return;
    QString path;
    if (!clsSystem::GetFilenameSaveAs(path, tr("Create Mail Merge Data File"),
                                      tr("MS FoxPro Files (*.dbf)|*.dbf"), {},
                                      QStringLiteral("dbf")))
        return;
    if (CreateMailMergeData(path))
        prompts::inform(path + tr(" has been created!"));
}

bool frmReportDisplay::CreateMailMergeData(const QString &sFullPath)
{
    const BusyWindow oneAtATime(this);
    RowProgress progress(tr("Mail Merge Data"),
                         tr("Creating Mail Merge Data file. Please wait..."));
    std::vector<qint32> custids;
    custids.reserve(report().rows.size());
    for (const ReportTable::Row &row : report().rows)
        custids.push_back(row.rowid);
    return writeMailMerge(
               sFullPath, custids, [&progress](qint32) { return progress.step(); },
               "frmReportDisplay_CreateMailMergeData")
        .has_value();
}
