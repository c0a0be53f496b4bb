// What the command line means, and what the program answers without a display.
#include "shell/CommandLine.h"
#include "shell/Startup.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace
{

struct Output {
    int exitCode;
    QString out;
    QString err;
};

// The real program on a machine without any display.
Output runWithoutDisplay(const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(NORVANE_BINARY_DIR "/bin/norvane"), arguments);
    EXPECT_TRUE(process.waitForFinished(20000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(CommandLine, OnePairOfQuotesGoesAndBlanksStay)
{
    const auto folder = [](const QStringList &arguments) {
        return Startup::folderFromCommandLine(arguments);
    };
    EXPECT_EQ(folder({}), "");
    EXPECT_EQ(folder({"  "}), "");
    EXPECT_EQ(folder({"\"/data/our customers\""}), "/data/our customers");
    EXPECT_EQ(folder({"/data/our", "customers"}), "/data/our customers");
    EXPECT_EQ(folder({"\""}), "\"");
    EXPECT_EQ(folder({"\"\""}), "");
    EXPECT_EQ(folder({"\"\"/data\"\""}), "\"/data\"");
    EXPECT_EQ(folder({"\"/data"}), "\"/data");
}

TEST(CommandLine, TellsFoldersFromOptions)
{
    EXPECT_EQ(readCommandLine({"/data"}).answer, CommandLine::Answer::None);
    EXPECT_EQ(readCommandLine({"-platform", "offscreen"}).answer, CommandLine::Answer::None);
    const CommandLine tour = readCommandLine({"--tour", "out", "data"});
    EXPECT_TRUE(tour.tour);
    EXPECT_EQ(tour.tourFolder, "out");
    EXPECT_EQ(tour.folder, "data");
    EXPECT_EQ(readCommandLine({"--tour"}).answer, CommandLine::Answer::WrongUse);
    EXPECT_EQ(readCommandLine({"--tuor", "out"}).wrong, "--tuor");
    const CommandLine german = readCommandLine({"/data", "--language", "de_AT"});
    EXPECT_EQ(german.answer, CommandLine::Answer::None);
    EXPECT_EQ(german.language, "de_AT");
    EXPECT_TRUE(readCommandLine({"--language", "en", "--tour", "out"}).tour);
    EXPECT_EQ(readCommandLine({"--language"}).wrong, "--language");
    EXPECT_EQ(readCommandLine({"--language", "tlh"}).wrong, "--language tlh");
}

TEST(CommandLine, HelpAndVersionNeedNoDisplay)
{
    const Output help = runWithoutDisplay({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.startsWith("Usage: norvane [FOLDER] [--language CODE]"))
        << qPrintable(help.out);
    const Output version = runWithoutDisplay({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, QString(u"Norvane " + versionText() + u'\n'));
    EXPECT_EQ(runWithoutDisplay({"--hlep"}).exitCode, 2);
}

TEST(CommandLine, AStartWithoutADisplaySaysSo)
{
    const Output start = runWithoutDisplay({});
    EXPECT_EQ(start.exitCode, 1);
    EXPECT_TRUE(start.err.contains("there is no display")) << qPrintable(start.err);
}
