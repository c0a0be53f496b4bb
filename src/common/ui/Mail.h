// Mail: puts a filled-in message in front of the person, who sends it. Nothing is sent from here.
#pragma once

#include <QString>

namespace mail
{

// The way that a message takes, a setting of this user on this machine.
enum Handler { Unset = 0, SimpleMapi = 1, Outlook = 2 };

// Recipients are joined by commas. Without a chosen handler the person is asked for one first.
// False when no mail program took the message; that was told.
bool SendMail(const QString &recipients, const QString &subject, const QString &body);
// As a mail address with everything in it, to the desktop's mail program.
bool SendMailMAPI(const QString &recipients, const QString &subject, const QString &body);
// As an unsent message in a file, to the program for such files.
bool SendMailOutlook(const QString &recipients, const QString &subject, const QString &body);

int GetEmailHandler(); // 0, 1 or 2; another stored value counts as 0
void SetEmailHandler(int handler);
void EmailHandlerDlg(); // frmOptions, modal

void NoMAPIMsg();
void NoOutlookMsg();

} // namespace mail
