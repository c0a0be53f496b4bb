// Several instances of the program, each a process of its own.
#include "common/ui/FormWindow.h"
#include "shell/SingleInstance.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace
{

class SecondStart : public ::testing::Test
{
protected:
    ~SecondStart() override
    {
        for (const auto &process : m_processes) {
            process->kill();
            process->waitForFinished();
        }
    }

    QProcess *start(const QString &program, const QStringList &arguments = {})
    {
        m_processes.push_back(std::make_unique<QProcess>());
        QProcess *process = m_processes.back().get();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("XDG_RUNTIME_DIR", m_folder.path());
        environment.insert("XDG_CONFIG_HOME", m_folder.path());
        environment.insert("HOME", m_folder.path());
        process->setProcessEnvironment(environment);
        process->start(QStringLiteral(NORVANE_BINARY_DIR "/bin/") + program, arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    // The program itself, up to where it can be found by others.
    QProcess *startProgram(const QStringList &arguments = {})
    {
        QProcess *program = start("norvane", arguments);
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return QFile::exists(m_folder.filePath("norvane.socket")); }, 20000));
        return program;
    }
    struct Outcome {
        int exitCode;
        QString told;
    };
    Outcome tryAgain(const QStringList &arguments = {})
    {
        QProcess *second = start("norvane_second_start", arguments);
        EXPECT_TRUE(second->waitForFinished(20000));
        return {second->exitCode(), QString::fromUtf8(second->readAllStandardOutput()).trimmed()};
    }

    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<QProcess>> m_processes;
};

} // namespace

TEST_F(SecondStart, IsRefusedWhileTheProgramRuns)
{
    EXPECT_EQ(tryAgain().exitCode, 3) << "nothing runs yet";
    QProcess *program = startProgram();
    const Outcome second = tryAgain();
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.told, "Norvane is already running!");
    EXPECT_EQ(program->state(), QProcess::Running);
}

TEST_F(SecondStart, MayRunOnAFolderOfItsOwn)
{
    startProgram();
    const Outcome second = tryAgain({m_folder.path()});
    EXPECT_EQ(second.exitCode, 3);
    EXPECT_EQ(second.told, "");
}

TEST_F(SecondStart, AnInstanceThatDiedDoesNotStandInTheWay)
{
    QProcess *program = startProgram();
    program->kill();
    ASSERT_TRUE(program->waitForFinished());
    EXPECT_EQ(tryAgain().exitCode, 3);
}

// Two run on folders of their own; when the first ends, the other must still be found.
TEST_F(SecondStart, TheOneLeftRunningTakesThePlaceOfTheFirst)
{
    QProcess *first = startProgram();
    QProcess *other = start("norvane", {m_folder.filePath("no database here")});
    // It shows its splash for three seconds; its connection to the first is made before that.
    EXPECT_FALSE(other->waitForFinished(2000));
    first->terminate();
    ASSERT_TRUE(first->waitForFinished(10000));
    const auto answers = [this] {
        QLocalSocket door;
        door.connectToServer(m_folder.filePath("norvane.socket"));
        return door.waitForConnected(100);
    };
    EXPECT_TRUE(QTest::qWaitFor(answers, 20000));
    EXPECT_EQ(tryAgain().exitCode, 0);
    EXPECT_EQ(other->state(), QProcess::Running);
}
