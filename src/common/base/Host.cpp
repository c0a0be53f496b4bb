#include "common/base/Host.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSet>
#include <QSysInfo>

#include <chrono>

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

// A process object that goes would take its program along, so one that is left running is kept
// until the program ends, beyond the end of ours if need be.
bool handOverTo(const QString &program, const QStringList &arguments, int patience)
{
    auto *process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(program, arguments);
    const bool started = process->waitForStarted(patience);
    if (started && !process->waitForFinished(patience)) {
        static auto *leftRunning = new QSet<QProcess *>;
        leftRunning->insert(process);
        QObject::connect(process, &QProcess::finished, process, [process] {
            leftRunning->remove(process);
            process->deleteLater();
        });
        return true;
    }
    const bool done =
        started && process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    delete process;
    return done;
}

} // namespace

Host machineHost()
{
    Host host;
    host.now = [] { return QDateTime::currentDateTime(); };
    host.ticks = [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    };
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
    host.handOver = handOverTo;
    return host;
}

Host &host()
{
    static Host instance = machineHost();
    return instance;
}
