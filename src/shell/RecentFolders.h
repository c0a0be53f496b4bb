// The data folders opened on this machine, the newest first; kept with the preferences.
#pragma once

#include <QStringList>

namespace recentfolders
{

inline constexpr int Most = 9;

QStringList list();
void note(const QString &folder);   // was opened
void forget(const QString &folder); // can no longer be opened

} // namespace recentfolders
