// Files that are written as a whole: when the program is killed in the middle, or the disk is full,
// the old file stands there whole, and nothing beside it.
#include "support/TempPreferences.h"

#include "common/base/clsSystem.h"
#include "common/base/Preferences.h"
#include "common/base/Prompts.h"
#include "common/base/WholeFile.h"

#include <gtest/gtest.h>

#ifndef Q_OS_WIN

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct Output {
    const char *name;
    std::function<bool(const QString &path, const QByteArray &bytes)> write;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

// In a process whose files may have `most` bytes: it is killed at the write that goes beyond, or
// told that there is no room. True when the output was reported as written.
bool writeWithin(rlim_t most, bool killed, const std::function<bool()> &write)
{
    const pid_t child = ::fork();
    if (child == 0) {
        std::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
        const rlimit limit{most, most};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const rlimit noDump{0, 0};
        ::setrlimit(RLIMIT_CORE, &noDump);
        prompts::backend().message = [](const prompts::Message &message) { return message.preset; };
        ::_exit(write() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

TEST(WholeOutputs, AreOldOrNewAndNeverHalf)
{
    const QTemporaryDir source;
    const Output outputs[] = {
        {"a saved document",
         [](const QString &path, const QByteArray &bytes) { return writeWhole(path, bytes); }},
        {"a text",
         [](const QString &path, const QByteArray &bytes) {
             return clsSystem::WriteToFile(QString::fromLatin1(bytes), path, true);
         }},
        {"a copy", [&](const QString &path, const QByteArray &) {
             return clsSystem::FileCopyFn(source.filePath(QStringLiteral("from")), path);
         }}};
    const QByteArray old(3000, 'o');
    const QByteArray fresh(100000, 'n');
    QFile prepared(source.filePath(QStringLiteral("from"))); // not under the limit
    ASSERT_TRUE(prepared.open(QIODevice::WriteOnly));
    prepared.write(fresh);
    prepared.close();
    for (const Output &output : outputs) {
        for (const rlim_t most : {0, 1, 4096, 16384, 99999, 100000}) {
            for (const bool killed : {false, true}) {
                const QTemporaryDir dir;
                const QString path = dir.filePath(QStringLiteral("output"));
                QFile file(path);
                ASSERT_TRUE(file.open(QIODevice::WriteOnly));
                file.write(old);
                file.close();
                const bool done =
                    writeWithin(most, killed, [&] { return output.write(path, fresh); });
                EXPECT_EQ(done, most >= 100000) << output.name << ' ' << most << ' ' << killed;
                EXPECT_EQ(bytesOf(path), done ? fresh : old) << output.name << ' ' << most;
                const bool alone = QDir(dir.path()).entryList(QDir::Files).size() == 1;
                EXPECT_TRUE(alone || killed) << output.name;
            }
        }
    }
}

TEST(WholeOutputs, PreferencesAreOldOrNew)
{
    for (const rlim_t most : {0, 20, 200, 100000}) {
        for (const bool killed : {false, true}) {
            const TempPreferences preferences;
            for (int i = 0; i < 20; ++i)
                SetPrefStr(QStringLiteral("name%1").arg(i), QStringLiteral("a value"));
            const bool done = writeWithin(most, killed, [] {
                return SetPrefStr(QStringLiteral("name3"), QStringLiteral("another value"));
            });
            EXPECT_EQ(done, most == 100000) << most << ' ' << killed;
            EXPECT_EQ(GetPrefStr(QStringLiteral("name3")),
                      done ? QStringLiteral("another value") : QStringLiteral("a value"));
            EXPECT_EQ(GetPrefStr(QStringLiteral("name19")), QStringLiteral("a value")) << most;
        }
    }
}

#endif
