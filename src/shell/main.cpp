#include "common/base/AppInfo.h"
#include "common/ui/GuiDoors.h"
#include "common/ui/Icons.h"
#include "common/ui/ProgramStyle.h"
#include "shell/CommandLine.h"
#include "shell/Language.h"
#include "shell/Startup.h"
#include "shell/Tour.h"

#include <QApplication>

namespace
{

void nameTheProgram()
{
    QCoreApplication::setOrganizationName(app::company());
    QCoreApplication::setApplicationName(app::title());
    QCoreApplication::setApplicationVersion(versionText());
    QGuiApplication::setDesktopFileName(QStringLiteral("norvane"));
    QGuiApplication::setWindowIcon(applicationIcon());
}

QStringList argumentsAsGiven(int argc, char *argv[])
{
    QStringList arguments;
    for (int at = 1; at < argc; ++at)
        arguments.append(QString::fromLocal8Bit(argv[at]));
    return arguments;
}

int startProgram(QStringList arguments)
{
    takeLanguage(arguments);
    Startup startup(Startup::folderFromCommandLine(arguments));
    return startup.run() ? QApplication::exec() : 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = argumentsAsGiven(argc, argv);
    const CommandLine command = readCommandLine(arguments);
    if (command.answer != CommandLine::Answer::None)
        return answerWithoutDisplay(command);
    if (!findDisplay(command, arguments))
        return 1;
    const QApplication application(argc, argv);
    nameTheProgram();
    const Language language(command.language);
    ProgramStyle::install();
    installGuiDoors(nullptr);
    if (command.tour)
        return Tour(command.tourFolder, command.folder).run();
    // The toolkit has taken its own options out of the list.
    return startProgram(QApplication::arguments().mid(1));
}
