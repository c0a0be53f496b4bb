#include "shell/RecentFolders.h"

#include "common/base/Preferences.h"

namespace recentfolders
{

namespace
{

QString prefName(int place)
{
    return u"recentdb" + QString::number(place + 1);
}

void keep(const QStringList &folders)
{
    for (int place = 0; place < Most; ++place)
        SetPrefStr(prefName(place), folders.value(place));
}

} // namespace

QStringList list()
{
    QStringList folders;
    for (int place = 0; place < Most; ++place) {
        const QString folder = GetPrefStr(prefName(place));
        if (!folder.isEmpty())
            folders.append(folder);
    }
    return folders;
}

void note(const QString &folder)
{
    QStringList folders = list();
    if (folders.value(0) == folder)
        return;
    folders.removeAll(folder);
    folders.prepend(folder);
    keep(folders);
}

void forget(const QString &folder)
{
    QStringList folders = list();
    if (folders.removeAll(folder) > 0)
        keep(folders);
}

} // namespace recentfolders
