#include "ctl/Command.h"
#include "ctl/CtlRun.h"
#include "ctl/Program.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace
{

ctl::Command sample()
{
    return {QStringLiteral("copy"),
            {QStringLiteral("FROM"), QStringLiteral("[TO]")},
            {{QStringLiteral("--user"), QStringLiteral("NAME"), QString()},
             {QStringLiteral("--quiet"), QString(), QString()}},
            QStringLiteral("Copy"),
            QString(),
            {}};
}

QString errorOf(const QStringList &words)
{
    ctl::Arguments arguments;
    QString error;
    return ctl::parseArguments(sample(), words, arguments, error) ? QString() : error;
}

} // namespace

TEST(Usage, WordsAndOptionsMayStandInAnyOrder)
{
    ctl::Arguments arguments;
    QString error;
    ASSERT_TRUE(ctl::parseArguments(sample(), {"--user=ann=b", "a", "--quiet", "--", "-b"},
                                    arguments, error));
    EXPECT_EQ(arguments.words, QStringList({"a", "-b"}));
    EXPECT_EQ(arguments.values.value("--user"), "ann=b");
    EXPECT_TRUE(arguments.has("--quiet"));
    ASSERT_TRUE(ctl::parseArguments(sample(), {"a"}, arguments = {}, error));
    EXPECT_FALSE(arguments.has("--quiet"));
}

TEST(Usage, WhatDoesNotFitIsNamed)
{
    EXPECT_EQ(errorOf({}), "FROM is missing");
    EXPECT_EQ(errorOf({"a", "b", "c"}), "'c' is one word too many");
    EXPECT_EQ(errorOf({"a", "--usr", "x"}), "unknown option '--usr'");
    EXPECT_EQ(errorOf({"a", "--user"}), "option '--user' wants a value: --user NAME");
    EXPECT_EQ(errorOf({"a", "--quiet=yes"}), "option '--quiet' takes no value");
    EXPECT_EQ(errorOf({""}), "an empty word was given");
}

TEST(Usage, WrongUseIsSaidOnStandardErrorWithCodeTwo)
{
    const QList<QStringList> calls{{},
                                   {"frobnicate"},
                                   {"new"},
                                   {"new", "a", "b"},
                                   {"dump", "a"},
                                   {"import", "a", "customers"},
                                   {"check", "a", "--fix"}};
    for (const QStringList &call : calls) {
        const CtlResult result = ctlRun(call);
        EXPECT_EQ(result.code, 2) << qPrintable(call.join(u' '));
        EXPECT_TRUE(result.out.isEmpty());
        EXPECT_TRUE(result.err.startsWith("norvanectl: ")) << qPrintable(result.err);
    }
}

TEST(Usage, HelpNamesEveryCommandAndEveryOption)
{
    const CtlResult general = ctlRun({"--help"});
    EXPECT_EQ(general.code, 0);
    EXPECT_TRUE(general.err.isEmpty());
    const QList<ctl::Command> commands = ctl::commands();
    for (const ctl::Command &command : commands) {
        EXPECT_TRUE(general.out.contains("  " + command.name + " ")) << qPrintable(command.name);
        const CtlResult page = ctlRun({command.name, "--help"});
        EXPECT_EQ(page.code, 0);
        EXPECT_EQ(page.out, ctlRun({"help", command.name}).out);
        for (const QString &word : command.words)
            EXPECT_TRUE(page.out.contains(word));
        for (const ctl::Option &option : command.options)
            EXPECT_TRUE(page.out.contains("\n  " + option.name)) << qPrintable(option.name);
        for (const QString &line : page.lines())
            EXPECT_LE(line.size(), 100) << qPrintable(line);
    }
    EXPECT_EQ(ctlRun({"-h"}).out, general.out);
}

TEST(Usage, VersionIsOneLine)
{
    const CtlResult version = ctlRun({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_TRUE(
        QRegularExpression("^norvanectl \\d+\\.\\d+\\.\\d+\n$").match(version.out).hasMatch());
}
