#include "support/Station.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

Station::Station(const QString &folder, const QString &computer)
{
    const QString program = QStringLiteral(NORVANE_BINARY_DIR "/bin/norvane_station");
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, {computer});
    EXPECT_TRUE(m_process.waitForStarted()) << qPrintable(program);
    if (!folder.isEmpty()) {
        EXPECT_EQ("ok", ask(QStringLiteral("open %1 SYSOP sysop").arg(folder)).toStdString());
    }
}

Station::~Station()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    send(QStringLiteral("quit"));
    if (!m_process.waitForFinished(5000))
        kill();
}

QString Station::ask(const QString &command, int timeoutMs)
{
    send(command);
    return answer(timeoutMs);
}

void Station::send(const QString &command)
{
    m_process.write(command.toUtf8() + '\n');
    m_process.waitForBytesWritten();
}

QString Station::answer(int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_process.canReadLine()) {
        const auto left = timeoutMs - static_cast<int>(timer.elapsed());
        if (left <= 0 || !m_process.waitForReadyRead(left)) {
            ADD_FAILURE() << "the station gave no answer";
            return {};
        }
    }
    return QString::fromUtf8(m_process.readLine()).trimmed();
}

void Station::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}
