#include "common/base/Host.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSysInfo>

namespace
{

QLocale regionalSettings()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return QLocale(QLocale::English, QLocale::UnitedStates);
    return system;
}

void letEventsThrough()
{
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::processEvents();
}

ProgramResult runToItsEnd(const QString &program, const QStringList &arguments, int patience)
{
    QProcess process;
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit, process.exitCode(),
            process.readAllStandardOutput(), process.readAllStandardError()};
}

Host machine()
{
    Host host;
    host.now = [] { return QDateTime::currentDateTime(); };
    host.computerName = [] { return QSysInfo::machineHostName(); };
    host.locale = regionalSettings;
    host.pumpEvents = letEventsThrough;
    host.repaint = [] {};
    host.setBusy = [](bool) {};
    host.open = [](const QString &) { return false; };
    host.launch = [](const QString &program, const QStringList &arguments) {
        return QProcess::startDetached(program, arguments);
    };
    host.run = runToItsEnd;
    return host;
}

} // namespace

Host &host()
{
    static Host instance = machine();
    return instance;
}
