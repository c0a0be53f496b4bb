#include "common/ui/Mail.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Hourglass.h"
#include "common/base/Preferences.h"
#include "common/ui/frmOptions.h"
#include "common/ui/MailDraft.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Mail)
};

constexpr int kPatience = 3000; // milliseconds in which a mail program tells that it failed
constexpr int kDraftDays = 1;   // drafts hold what customers wrote, so they are not kept longer
// Longer addresses are cut by the desktop, if taken at all.
#ifdef Q_OS_WIN
constexpr qsizetype kLongestLink = 2000;
#else
constexpr qsizetype kLongestLink = 100'000;
#endif

const QString &handlerPreference()
{
    static const QString name = QStringLiteral("emailhandler");
    return name;
}

// The tool says when the desktop has no program for the item; the desktop's own call does not.
bool handOver(const QString &tool, const QString &item)
{
    const QString path = QStandardPaths::findExecutable(tool);
    return path.isEmpty() ? host().open(item) : host().handOver(path, {item}, kPatience);
}

void dropOldDrafts(const QDir &folder)
{
    const QDateTime limit = host().now().addDays(-kDraftDays);
    for (const QFileInfo &draft : folder.entryInfoList({QStringLiteral("*.eml")}, QDir::Files))
        if (draft.lastModified() < limit)
            QFile::remove(draft.filePath());
}

// In a file that only this user can read; empty when it could not be written.
QString writeDraft(const QByteArray &draft)
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::CacheLocation) +
                      QLatin1String("/mail"));
    if (!folder.mkpath(QStringLiteral(".")))
        return {};
    dropOldDrafts(folder);
    QTemporaryFile file(folder.filePath(QStringLiteral("message-XXXXXX.eml")));
    if (!file.open() || file.write(draft) != draft.size() || !file.flush())
        return {};
    file.setAutoRemove(false);
    return file.fileName();
}

bool openDraft(const QString &recipients, const QString &subject, const QString &body)
{
    const QString file = writeDraft(mailDraft(mailAddresses(recipients), subject, body));
    return !file.isEmpty() && handOver(QStringLiteral("xdg-open"), file);
}

} // namespace

bool mail::SendMail(const QString &recipients, const QString &subject, const QString &body)
{
    if (GetEmailHandler() == Unset)
        EmailHandlerDlg();
    return GetEmailHandler() == Outlook ? SendMailOutlook(recipients, subject, body)
                                        : SendMailMAPI(recipients, subject, body);
}

bool mail::SendMailMAPI(const QString &recipients, const QString &subject, const QString &body)
{
    const auto send = [&] {
        const Hourglass hourglass;
        const QByteArray link = mailAddressLink(mailAddresses(recipients), subject, body);
        if (link.size() > kLongestLink)
            return openDraft(recipients, subject, body);
        return handOver(QStringLiteral("xdg-email"), QString::fromLatin1(link));
    };
    const bool sent = send();
    if (!sent)
        NoMAPIMsg();
    return sent;
}

bool mail::SendMailOutlook(const QString &recipients, const QString &subject, const QString &body)
{
    const auto send = [&] {
        const Hourglass hourglass;
        return openDraft(recipients, subject, QLatin1String("\n\n") + body);
    };
    const bool sent = send();
    if (!sent)
        NoOutlookMsg();
    return sent;
}

int mail::GetEmailHandler()
{
    const qint32 stored = GetPrefLong(handlerPreference());
    return stored == SimpleMapi || stored == Outlook ? stored : Unset;
}

void mail::SetEmailHandler(int handler)
{
    SetPrefLong(handlerPreference(), handler);
}

void mail::EmailHandlerDlg()
{
    QWidget *over = QApplication::activeModalWidget();
    frmOptions options(over != nullptr ? over : QApplication::activeWindow());
    options.exec();
}

void mail::NoMAPIMsg()
{
    gSys.ShowMsg(
        Words::tr("Unable to initiate your email software! \n\n"
                  "There is no Microsoft SIMPLE MAPI (Messaging Application Programming "
                  "Interface) compatible email application (such Microsoft Outlook EXPRESS) "
                  "installed on your machine.\n\n"
                  "Please choose View, Options menu to check or change your Email options."),
        prompts::Kind::Critical);
}

void mail::NoOutlookMsg()
{
    gSys.ShowMsg(
        Words::tr("Unable to initiate Microsoft Outlook!\n\n"
                  "If you intend to use Microsoft Outlook, please make sure Microsoft Outlook "
                  "is installed on your machine and is functioning properly.\n\n"
                  "Please choose View, Options menu to check or change your Email options."),
        prompts::Kind::Critical);
}
