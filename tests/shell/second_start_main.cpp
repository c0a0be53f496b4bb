// A start of the program up to the question whether it runs already. Box texts go to standard
// output; exit code 3 says that this instance would run.
#include "common/base/Prompts.h"
#include "shell/Startup.h"

#include <QApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    prompts::backend().message = [](const prompts::Message &message) {
        QTextStream(stdout) << message.text << '\n';
        return prompts::Answer::Ok;
    };
    SingleInstance instance;
    const QString folder = Startup::folderFromCommandLine(QApplication::arguments().mid(1));
    return Startup::mayRun(instance, folder) ? 3 : 0;
}
