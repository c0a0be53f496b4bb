// Settings of this user on this machine: one flat section of text values ("Pref" of organisation
// Dalvion, application Norvane). A missing value reads as empty text or 0.
#pragma once

#include <QString>

bool SetPrefStr(const QString &name, const QString &value);
bool SetPrefLong(const QString &name, qint32 value);
QString GetPrefStr(const QString &name);
// Numeric text, rounded; anything else gives 0.
qint32 GetPrefLong(const QString &name);

// Tests: keep preferences in this ini file instead of the user's own; empty goes back to that.
// Gives the file used before.
QString usePreferencesFile(const QString &path);
