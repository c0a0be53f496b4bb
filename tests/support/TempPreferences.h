// An empty preferences store that lasts as long as the test.
#pragma once

#include "common/base/Preferences.h"

#include <QTemporaryDir>

class TempPreferences
{
public:
    TempPreferences() : m_before(usePreferencesFile(path())) {}
    ~TempPreferences() { usePreferencesFile(m_before); }
    TempPreferences(const TempPreferences &) = delete;
    TempPreferences &operator=(const TempPreferences &) = delete;

    QString path() const { return m_dir.filePath(QStringLiteral("norvane.ini")); }

private:
    QTemporaryDir m_dir;
    QString m_before;
};
