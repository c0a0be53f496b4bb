#include "shell/CommandLine.h"

#include "common/base/AppInfo.h"
#include "shell/Language.h"

#include <QTextStream>

namespace
{

const QString languageOption = QStringLiteral("--language");

QString usage()
{
    return QStringLiteral(
        "Usage: norvane [FOLDER] [--language CODE]\n"
        "       norvane --tour PICTURES [FOLDER] [--language CODE]\n"
        "\n"
        "Customer care for a small business.\n"
        "\n"
        "  FOLDER      the data folder to open; without it the one used last\n"
        "  --tour      go through the program by itself and save a picture of each step in the\n"
        "              folder PICTURES; needs no display. The new database of the tour is made\n"
        "              in FOLDER, or in a temporary folder.\n"
        "  --language  show all texts in the language CODE (en, de); without it in that of the\n"
        "              system, or in English when it is not there\n"
        "  --help      show this and end\n"
        "  --version   show the version and end\n");
}

CommandLine wrongUse(const QString &what)
{
    CommandLine command;
    command.answer = CommandLine::Answer::WrongUse;
    command.wrong = what;
    return command;
}

// Options of the toolkit ("-platform", "-style") have one hyphen and are its own affair.
bool isOption(const QString &argument)
{
    return argument.startsWith(QLatin1String("--"));
}

// The toolkit says of each thing that it cannot do without a display; that is no news.
void passOverLimits(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")) &&
        !text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")))
        QTextStream(stderr) << text << '\n';
}

CommandLine readTour(const QStringList &arguments)
{
    CommandLine command;
    command.tour = true;
    if (arguments.isEmpty() || arguments.size() > 2)
        return wrongUse(QStringLiteral("--tour"));
    command.tourFolder = arguments[0];
    command.folder = arguments.value(1);
    return command;
}

CommandLine readOptions(const QStringList &arguments)
{
    CommandLine command;
    if (arguments.isEmpty() || !isOption(arguments.first()))
        return command;
    const QString &option = arguments.first();
    if (option == QLatin1String("--tour"))
        return readTour(arguments.mid(1));
    if (option == QLatin1String("--help"))
        command.answer = CommandLine::Answer::Help;
    else if (option == QLatin1String("--version"))
        command.answer = CommandLine::Answer::Version;
    else
        return wrongUse(option);
    return command;
}

} // namespace

QString takeLanguage(QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(languageOption);
    if (at < 0)
        return QLatin1String("");
    arguments.removeAt(at);
    return at < arguments.size() ? arguments.takeAt(at) : QString();
}

CommandLine readCommandLine(const QStringList &arguments)
{
    QStringList others = arguments;
    const QString language = takeLanguage(others);
    if (language.isNull())
        return wrongUse(languageOption);
    if (!language.isEmpty() && !Language::isThere(language))
        return wrongUse(languageOption + u' ' + language);
    CommandLine command = readOptions(others);
    command.language = language;
    return command;
}

int answerWithoutDisplay(const CommandLine &command)
{
    QTextStream out(stdout);
    switch (command.answer) {
    case CommandLine::Answer::Help:
        out << usage();
        return 0;
    case CommandLine::Answer::Version:
        out << app::title() << ' ' << versionText() << '\n';
        return 0;
    case CommandLine::Answer::WrongUse:
        QTextStream(stderr) << "norvane: wrong use of " << command.wrong << "\n\n" << usage();
        return 2;
    case CommandLine::Answer::None:
        break;
    }
    return 0;
}

bool findDisplay(const CommandLine &command, const QStringList &arguments)
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const bool named = qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
                       arguments.contains(QLatin1String("-platform"));
    if (named || !qEnvironmentVariableIsEmpty("DISPLAY") ||
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return true;
    if (!command.tour) {
        QTextStream(stderr) << "norvane: there is no display. \"norvane --tour PICTURES\" shows "
                               "the program without one.\n";
        return false;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(passOverLimits);
#else
    Q_UNUSED(command)
    Q_UNUSED(arguments)
#endif
    return true;
}

QString versionText()
{
    return QString::number(app::versionMajor()) + u'.' + QString::number(app::versionMinor()) +
           u'.' + QString::number(app::versionRevision());
}
