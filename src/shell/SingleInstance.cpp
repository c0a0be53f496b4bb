#include "shell/SingleInstance.h"

#include <QDir>
#include <QStandardPaths>
#include <QTimer>

namespace
{

constexpr int patience = 2000; // milliseconds, for a process that is there but busy

QString runtimeFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

// A path, except on Windows, where such addresses lie in a place of their own.
QString addressOfFirst()
{
#ifdef Q_OS_WIN
    return u"norvane-" + QDir::home().dirName();
#else
    return QDir(runtimeFolder()).filePath(QStringLiteral("norvane.socket"));
#endif
}

} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent),
      m_address(addressOfFirst()),
      m_lock(QDir(runtimeFolder()).filePath(QStringLiteral("norvane.lock")))
{
    m_lock.setStaleLockTime(0); // held for as long as the program runs
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::greet);
    // The first one ended, or was ending already. It closes its door a moment before its lock is
    // free.
    connect(&m_first, &QLocalSocket::errorOccurred, this,
            [this] { QTimer::singleShot(300, this, &SingleInstance::begin); });
}

bool SingleInstance::begin()
{
    if (becomeFirst())
        return true;
    m_first.connectToServer(m_address);
    return false;
}

// Without a place for the lock nothing can be told, and the program starts.
bool SingleInstance::becomeFirst()
{
    if (!m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError)
        return false;
    QLocalServer::removeServer(m_address);
    m_server.listen(m_address);
    return true;
}

void SingleInstance::greet()
{
    QLocalSocket *other = m_server.nextPendingConnection();
    connect(other, &QLocalSocket::disconnected, other, &QObject::deleteLater);
    connect(other, &QLocalSocket::readyRead, this, [this, other] {
        if (!other->readAll().isEmpty())
            Q_EMIT raiseWanted();
    });
}

void SingleInstance::raiseRunning()
{
    if (!m_first.waitForConnected(patience))
        return;
    m_first.write("raise\n");
    m_first.waitForBytesWritten(patience);
}
