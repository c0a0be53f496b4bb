// How a screen asks for another one without knowing it: the main window's operations. frmMain
// implements them; tests install a recorder (tests/support/RecordingSwitchboard.h).
#pragma once

#include <QString>
#include <QtGlobal>

class QWidget;

class Switchboard
{
public:
    virtual ~Switchboard() = default;

    // Record windows: raise the one that is open, else open it.
    virtual void ShowCustomer(qint32 rowid, bool bEdit) = 0;
    // A customer's product or service; -1 begins a new one.
    virtual void ShowPS(qint32 rowid, qint32 custid, bool bEdit) = 0;
    // A customer's issue; -1 begins a new one, from that template when its number is above 0.
    virtual void ShowIssue(qint32 rowid, qint32 custid, bool bEdit, qint32 templateId) = 0;
    // The result of a saved report; raises its window when it is open.
    virtual void ShowReport(qint32 rowid) = 0;
    // Asks for criteria, then lists the products and services that customers hold.
    virtual void ShowProductReport() = 0;
    // A report's definition; -1 begins a new one, on that type: "C" customers, "I" issues.
    virtual void ShowReportDef(qint32 rowid, const QString &type) = 0;
    // A report was saved or deleted: an open list of reports is read anew.
    virtual void NotifyReportList(qint32 rowid) = 0;
    // Lets a person choose the template of a new issue, -1 for none; false when it was cancelled.
    virtual bool GetIssueTemplateID(qint32 &id) = 0;
    // Kind 1 issues, 2 product/services: an open customer window reloads that list.
    virtual void NotifyCustomer(qint32 custid, int what, qint32 id) = 0;
    virtual void LookupCustomer() = 0;
    virtual void NewCustomer() = 0;
    // List editors; the argument is the list's type code.
    virtual void EditCategory(qint32 type) = 0;
    // The picked date in its short form; empty when none was. Opens at `start` when that is a date.
    virtual QString GetShortDateFromPopupCalendar(const QString &start) = 0;
    // False when no mail program took the message; that was told.
    virtual bool SendMail(const QString &to, const QString &subject, const QString &body) = 0;
    // Shows a window of ours as a child of the main window, which owns it from then on.
    virtual void showChild(QWidget *form) = 0;
    virtual void showHelp(int topic) = 0;
};

// The one in force; a do-nothing one until the main window or a test installs its own.
Switchboard &switchboard();
void installSwitchboard(Switchboard *board); // null goes back to the do-nothing one
