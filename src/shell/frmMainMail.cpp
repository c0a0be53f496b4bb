// Mail as the other windows ask the main window for it.
#include "shell/frmMain.h"

#include "common/ui/Mail.h"

bool frmMain::SendMail(const QString &to, const QString &subject, const QString &body)
{
    return mail::SendMail(to, subject, body);
}

bool frmMain::SendMailMAPI(const QString &to, const QString &subject, const QString &body)
{
    return mail::SendMailMAPI(to, subject, body);
}

bool frmMain::SendMailOutlook(const QString &to, const QString &subject, const QString &body)
{
    return mail::SendMailOutlook(to, subject, body);
}

int frmMain::GetEmailHandler()
{
    return mail::GetEmailHandler();
}

void frmMain::SetEmailHandler(int handler)
{
    mail::SetEmailHandler(handler);
}

void frmMain::EmailHandlerDlg()
{
    mail::EmailHandlerDlg();
}

void frmMain::NoMAPIMsg()
{
    mail::NoMAPIMsg();
}

void frmMain::NoOutlookMsg()
{
    mail::NoOutlookMsg();
}
