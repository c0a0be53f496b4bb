#include "ctl/Program.h"

#include "common/base/AppInfo.h"

#include <algorithm>

namespace ctl
{

namespace
{

constexpr int NameColumn = 28;

bool asksForHelp(const QString &word)
{
    return word == u"--help" || word == u"-h";
}

// The words the program itself understands in the place of a command.
QString callOf(const Command &command)
{
    QStringList parts{command.name};
    parts += command.words;
    return parts.join(u' ');
}

QString generalHelp()
{
    QString text = QStringLiteral("Usage: norvanectl COMMAND ...\n\n"
                                  "Works on a %1 database without a screen.\n\nCommands:\n")
                       .arg(app::title());
    for (const Command &command : commands())
        text += QStringLiteral("  %1%2\n")
                    .arg(callOf(command).leftJustified(NameColumn), command.summary);
    text += QStringLiteral(
        "\nDIR is the folder of a database. 'norvanectl COMMAND --help' tells more about one\n"
        "command, 'norvanectl --version' the version.\n\n"
        "Commands that write log in: --user NAME says who (SYSOP unless given), and the password\n"
        "comes from the environment variable NORVANE_PASSWORD or from standard input. The others\n"
        "need no login. Output is UTF-8.\n\n"
        "Exit code: 0 done, 1 a problem was found or the work was refused (standard error says\n"
        "why), 2 wrong use.\n");
    return text;
}

int wrongUse(const QString &reason, const QString &hint, Console &console)
{
    console.err << "norvanectl: " << reason << '\n' << hint << '\n';
    return WrongUse;
}

int runCommand(const Command &command, const QStringList &words, Console &console)
{
    if (std::any_of(words.begin(), words.end(), asksForHelp)) {
        console.out << command.helpPage();
        return Done;
    }
    Arguments arguments;
    QString error;
    if (!parseArguments(command, words, arguments, error))
        return wrongUse(QStringLiteral("%1: %2.").arg(command.name, error),
                        QStringLiteral("Usage: norvanectl %1").arg(command.usage()), console);
    const MessagesToConsole messages(console);
    return command.run(arguments, console);
}

int dispatch(const QStringList &words, Console &console)
{
    const QString hint = QStringLiteral("'norvanectl --help' lists the commands.");
    if (words.isEmpty())
        return wrongUse(QStringLiteral("no command was given."), hint, console);
    QString name = words.first();
    QStringList rest = words.mid(1);
    if (name == u"help" && !rest.isEmpty()) {
        name = rest.first();
        rest = {QStringLiteral("--help")};
    }
    if (asksForHelp(name) || name == u"help") {
        console.out << generalHelp();
        return Done;
    }
    if (name == u"--version") {
        console.out << QStringLiteral("norvanectl %1.%2.%3\n")
                           .arg(app::versionMajor())
                           .arg(app::versionMinor())
                           .arg(app::versionRevision());
        return Done;
    }
    for (const Command &command : commands())
        if (command.name == name)
            return runCommand(command, rest, console);
    return wrongUse(QStringLiteral("there is no command '%1'.").arg(name), hint, console);
}

} // namespace

QList<Command> commands()
{
    return {newCommand(),    demoCommand(),  bulkCommand(),   importCommand(), dumpCommand(),
            reportCommand(), checkCommand(), repairCommand(), reindexCommand()};
}

int runProgram(const QStringList &words, Console &console)
{
    int code = dispatch(words, console);
    console.out.flush();
    if (console.out.status() != QTextStream::Ok) {
        console.err << QStringLiteral("The output could not be written.\n");
        code = Problem;
    }
    console.err.flush();
    return code;
}

} // namespace ctl
