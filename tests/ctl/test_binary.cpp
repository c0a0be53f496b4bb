// The program itself, as a shell starts it.
#include "ctl/CtlRun.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

namespace
{

struct Call {
    QStringList words;
    QByteArray input;
    QString password; // of the environment; null: not set
};

CtlResult execute(const Call &call)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("NORVANE_PASSWORD");
    if (!call.password.isNull())
        environment.insert("NORVANE_PASSWORD", call.password);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/norvanectl", call.words);
    process.write(call.input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(Binary, CreatesImportsDumpsAndChecks)
{
    QTemporaryDir root;
    const QString dir = root.filePath("d\u00e5ta");
    ASSERT_EQ(execute({{"new", dir}, {}, {}}).code, 0);
    const QString csv = root.filePath("in.csv");
    writeAll(csv, "LASTNAME,COMPANY\nM\xFCller,\nDoe,\n");
    const QStringList import{"import", dir, "customers", csv, "--verbose"};
    const CtlResult environment = execute({import, {}, "sysop"});
    EXPECT_EQ(environment.code, 0) << qPrintable(environment.err);
    EXPECT_EQ(environment.out, "1000\n1001\n");
    const CtlResult typed = execute({import, "SYSOP\r\n", {}});
    EXPECT_EQ(typed.code, 0) << qPrintable(typed.err);
    EXPECT_EQ(typed.out, "1002\n1003\n");
    const CtlResult dump = execute({{"dump", dir, "customers"}, {}, {}});
    EXPECT_EQ(dump.lines().size(), 4);
    EXPECT_TRUE(dump.out.contains(QStringLiteral("\"lastname\":\"Müller\"")));
    EXPECT_EQ(execute({{"check", dir}, {}, {}}).code, 0);
}

TEST(Binary, RefusalsAreOnStandardErrorWithTheirCode)
{
    QTemporaryDir root;
    const QString dir = root.filePath("data");
    ASSERT_EQ(execute({{"new", dir}, {}, {}}).code, 0);
    const QString csv = root.filePath("in.csv");
    writeAll(csv, "DESCRIPTION\nA\n");
    const QList<QPair<Call, int>> calls{
        {{{"import", dir, "products", csv}, {}, "wrong"}, 1},
        {{{"import", dir, "products", csv}, {}, {}}, 1},
        {{{"import", dir, "products", csv, "--user", "nobody"}, {}, "x"}, 1},
        {{{"new", dir}, {}, {}}, 1},
        {{{"check", root.filePath("none")}, {}, {}}, 1},
        {{{"new"}, {}, {}}, 2},
        {{{}, {}, {}}, 2}};
    for (const auto &[call, code] : calls) {
        const CtlResult result = execute(call);
        EXPECT_EQ(result.code, code) << qPrintable(call.words.join(u' '));
        EXPECT_FALSE(result.err.isEmpty());
        EXPECT_TRUE(result.out.isEmpty()) << qPrintable(result.out);
    }
}

#ifdef Q_OS_LINUX
TEST(Binary, OutputThatCannotBeWrittenIsAProblem)
{
    QProcess process;
    process.setStandardOutputFile("/dev/full");
    process.start(QCoreApplication::applicationDirPath() + "/norvanectl", {"--help"});
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains("could not be written"));
}
#endif
