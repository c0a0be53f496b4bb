// What opens customers, and issues by their number.
#include "shell/frmMain.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"
#include "common/base/Prompts.h"
#include "common/ui/FormWindow.h"
#include "common/ui/frmCalendar.h"
#include "db/clsDB.h"
#include "forms/frmCustomer.h"
#include "search/frmCustomerList.h"
#include "search/frmLookupCustomer.h"

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

bool issueExists(qint32 rowid)
{
    return gDB.CheckIfRecExists(gDB.IssuesTable(), schema::table(schema::Table::Issues).dataFile(),
                                rowid);
}

// Asks until it gets a number; empty when the person gave up.
QString askForNumber(const QString &prompt, const QString &refusal)
{
    for (;;) {
        const QString answer = clsSystem::Trim(
            prompts::input(prompt, app::title(), {}, help::FindIssues).value_or(QString()));
        if (answer.isEmpty() || IsNumeric(answer))
            return answer;
        prompts::warn(refusal);
    }
}

} // namespace

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
    if (gDB.Perm_Customers() && gDB.MayWrite())
        ShowCustomer(-1, true);
}

void frmMain::LookupCustomer()
{
    frmLookupCustomer lookup(this);
    if (lookup.exec() != QDialog::Accepted)
        return;
    if (lookup.searchType() == SearchId) {
        showCustomerOfNumber(lookup.searchStr());
        return;
    }
    auto list = std::make_unique<frmCustomerList>();
    list->Init(lookup.searchStr(), lookup.searchType());
    showChild(list.release());
}

void frmMain::LookupByCustomerNumber()
{
    const QString number =
        askForNumber(tr("Enter Customer ID"), tr("Please enter a numeric value for Customer ID!"));
    if (!number.isEmpty())
        showCustomerOfNumber(number);
}

void frmMain::LookupByIssueNumber()
{
    const QString number =
        askForNumber(tr("Enter Issue ID"), tr("Please enter a numeric value for Issue ID!"));
    if (number.isEmpty())
        return;
    const qint32 rowid = idInText(number);
    if (rowid > 0 || issueExists(rowid))
        ShowIssue(rowid, -1, false, -1);
}

void frmMain::showCustomerOfNumber(const QString &number)
{
    const qint32 rowid = idInText(number);
    if (rowid > 0 || customerExists(rowid))
        ShowCustomer(rowid, false);
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

QString frmMain::GetShortDateFromPopupCalendar(const QString &start)
{
    QString picked;
    bool shown = false;
    guarded("frmMain_GetShortDateFromPopupCalendar", [&] {
        frmCalendar calendar(this);
        calendar.Init(start, tr("OK"));
        calendar.exec();
        picked = calendar.pickedDate();
        shown = true;
    });
    if (!shown)
        prompts::inform(tr("To correct this problem, please re-install %1").arg(app::title()));
    return picked;
}
