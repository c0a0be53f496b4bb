// clsSystem: what is asked of the machine and its desktop.
#include "common/base/clsSystem.h"

#include "common/base/AppInfo.h"
#include "common/base/Host.h"

#include <QCoreApplication>
#include <QUrl>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(clsSystem)
};

} // namespace

QString clsSystem::GetLocalComputerName()
{
    return host().computerName();
}

bool clsSystem::ShowFolder(const QString &path)
{
    if (host().open(LocalPath(path)))
        return true;
    prompts::warn(Words::tr("Unable to open folder '%1'").arg(path));
    return false;
}

bool clsSystem::LaunchFile(const QString &item, const QStringList &parameters)
{
    const bool taken = parameters.isEmpty() ? host().open(item) : host().launch(item, parameters);
    if (!taken) {
        prompts::warn(
            Words::tr(
                "Unable to launch '%1'! No application may be associated with this file type.")
                .arg(item));
    }
    return taken;
}

bool clsSystem::GotoWebsite(const QString &address)
{
    return LaunchFile(address);
}

bool clsSystem::GotoDVWebsite()
{
    return GotoWebsite(app::website());
}

bool clsSystem::SendEmail(const QString &address)
{
    return LaunchFile(QLatin1String("mailto:") +
                      QString::fromLatin1(QUrl::toPercentEncoding(Trim(address), "@+,")));
}

void clsSystem::WaitStart()
{
    host().setBusy(true);
}

void clsSystem::WaitEnd()
{
    host().setBusy(false);
}
