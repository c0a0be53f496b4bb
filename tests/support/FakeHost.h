// Puts a machine of the test's own behind host(): a clock that stands still, a computer name,
// American regional settings, and a record of what was opened or launched. The former host comes
// back at the end.
#pragma once

#include "common/base/Host.h"

#include <QStringList>

#include <chrono>
#include <vector>

class FakeHost
{
public:
    struct Launch {
        QString program;
        QStringList arguments;
    };

    // Sunday, 14 March 2004, 15:05:09, on the computer STATION1.
    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost &) = delete;
    FakeHost &operator=(const FakeHost &) = delete;

    void setNow(const QDateTime &now) { m_now = now; }
    void advance(std::chrono::seconds by) { m_now = m_now.addSecs(by.count()); }
    void setComputerName(const QString &name) { m_computerName = name; }
    void setLocale(const QLocale &locale) { m_locale = locale; }
    // Whether a program takes what is opened or launched from now on.
    void setAccepts(bool accepts) { m_accepts = accepts; }

    const QStringList &opened() const { return m_opened; }
    const std::vector<Launch> &launched() const { return m_launched; }
    bool isBusy() const { return m_busy; } // the hourglass

private:
    Host m_before;
    QDateTime m_now;
    QString m_computerName;
    QLocale m_locale;
    bool m_accepts = true;
    bool m_busy = false;
    QStringList m_opened;
    std::vector<Launch> m_launched;
};
