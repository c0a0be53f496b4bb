// Drives the station program: a second workstation in a process of its own.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

class Station
{
public:
    // Started and, when a folder is given, logged in there as the administrator.
    explicit Station(const QString &folder = {},
                     const QString &computer = QStringLiteral("REMOTE"));
    ~Station();
    Station(const Station &) = delete;
    Station &operator=(const Station &) = delete;

    // The one-line answer: "ok", "ok VALUE", or "failed: " and what its person was told. Empty
    // when none came in time.
    QString ask(const QString &command, int timeoutMs = 30000);
    // The two halves of ask, to keep several stations busy at once.
    void send(const QString &command);
    QString answer(int timeoutMs = 30000);
    // kill -9, and waits until the process is gone.
    void kill();

private:
    QProcess m_process;
};
