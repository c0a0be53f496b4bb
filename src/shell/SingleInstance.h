// One running program a user. The first one holds a lock file and listens; a later one finds the
// lock taken and can ask it to show its window.
#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QObject>

class SingleInstance : public QObject
{
    Q_OBJECT
public:
    // Works in the user's run-time folder.
    explicit SingleInstance(QObject *parent = nullptr);

    // True when no other instance runs, which makes this the first. False otherwise; this one
    // then waits to take the first one's place when that ends.
    bool begin();
    // Asks the first instance to raise and restore its window.
    void raiseRunning();

Q_SIGNALS:
    // Another instance asked for this one's window.
    void raiseWanted();

private:
    bool becomeFirst();
    void greet();

    QString m_address;
    QLockFile m_lock;
    QLocalServer m_server;
    QLocalSocket m_first; // open while another instance is the first
};
