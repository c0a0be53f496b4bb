// What opens customers, and the Help commands.
#include "shell/frmMain.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"
#include "common/base/Prompts.h"
#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "search/frmCustomerList.h"
#include "search/frmLookupCustomer.h"
#include "shell/frmSplash.h"
#include "ui_frmMain.h"

#include <QUrl>
#include <QUrlQuery>

namespace
{

QString customerTag(qint32 rowid)
{
    return u'C' + QString::number(rowid);
}

// A number that is no identifier at all gets the same answer as one that is gone.
qint32 idInText(const QString &text)
{
    const std::optional<qint32> id = RoundToLong(NumberInText(text).value_or(0));
    return id.value_or(0);
}

bool customerExists(qint32 rowid)
{
    return gDB.CheckIfRecExists(gDB.CustomerTable(),
                                schema::table(schema::Table::Customer).dataFile(), rowid);
}

} // namespace

void frmMain::connectViewMenu()
{
    for (QAction *command : {ui->mnuViewLookupCustomer, ui->LOOKUPCUST})
        connect(command, &QAction::triggered, this, &frmMain::LookupCustomer);
    for (QAction *command : {ui->mnuViewNewCustomer, ui->NEWCUST})
        connect(command, &QAction::triggered, this, &frmMain::NewCustomer);
}

void frmMain::connectHelpMenu()
{
    connect(ui->mnuHelpBackup, &QAction::triggered, this, [this] { gSys.ShowMsg(BackupMsg()); });
    connect(ui->mnuHelpSupport, &QAction::triggered, this, &frmMain::helpSupport);
    connect(ui->mnuHelpAbout, &QAction::triggered, this, &frmMain::helpAbout);
}

void frmMain::ShowCustomer(qint32 rowid, bool bEdit)
{
    const QString tag = customerTag(rowid);
    if (IsFormLoaded(tag)) {
        BringFormToTop(tag);
        return;
    }
    if (rowid > 0 && !customerExists(rowid))
        return;
    auto form = std::make_unique<frmCustomer>();
    form->Init(rowid, bEdit);
    showChild(form.release());
}

void frmMain::NewCustomer()
{
    if (gDB.Perm_Customers())
        ShowCustomer(-1, true);
}

void frmMain::LookupCustomer()
{
    frmLookupCustomer lookup(this);
    if (lookup.exec() != QDialog::Accepted)
        return;
    if (lookup.searchType() == SearchId) {
        const qint32 rowid = idInText(lookup.searchStr());
        if (rowid > 0 || customerExists(rowid))
            ShowCustomer(rowid, false);
        return;
    }
    auto list = std::make_unique<frmCustomerList>();
    list->Init(lookup.searchStr(), lookup.searchType());
    showChild(list.release());
}

// The lists are called by name: what a customer window shows is its own affair.
void frmMain::NotifyCustomer(qint32 custid, int what, qint32 id)
{
    FormWindow *form = GetFormWithTag(customerTag(custid));
    if (form == nullptr || (what != 1 && what != 2))
        return;
    const char *list = what == 1 ? "LV_LoadIssues" : "LV_LoadPS";
    const QByteArray signature = QByteArray(list) + "(int)";
    if (form->metaObject()->indexOfMethod(signature.constData()) >= 0)
        QMetaObject::invokeMethod(form, list, Q_ARG(int, id));
}

void frmMain::SendMail(const QString &to, const QString &subject, const QString &body)
{
    QUrl address;
    address.setScheme(QStringLiteral("mailto"));
    address.setPath(to);
    QUrlQuery query;
    if (!subject.isEmpty())
        query.addQueryItem(QStringLiteral("subject"), subject);
    if (!body.isEmpty())
        query.addQueryItem(QStringLiteral("body"), body);
    address.setQuery(query);
    gSys.GotoWebsite(address.toString(QUrl::FullyEncoded));
}

void frmMain::helpSupport()
{
    const QString question = tr("Support for %1 can be obtained online at").arg(app::title()) +
                             u'\n' + app::website() + QLatin1String("\n\n") +
                             tr("Would you like to go to this website?");
    if (prompts::ask(question) == prompts::Answer::Yes)
        gSys.GotoDVWebsite();
}

void frmMain::helpAbout()
{
    frmSplash about(this);
    about.exec();
}
