// Running the tour: its surroundings, its steps one by one, and the hands that press buttons.
#include "shell/Tour.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Preferences.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

namespace
{

constexpr int paintingTime = 150; // milliseconds

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

} // namespace

Tour::Tour(const QString &pictures, const QString &folder)
    : m_pictures(QDir(pictures).absolutePath()),
      m_folder(folder.isEmpty() ? m_temporary.filePath(QStringLiteral("NorvaneTour"))
                                : QDir(folder).absolutePath()),
      m_camera(m_pictures)
{
}

int Tour::run()
{
    int result = 0;
    try {
        prepare();
        allSteps();
        out() << "All " << m_step << " steps came out right.\n";
    } catch (const TourProblem &problem) {
        out() << "The tour stopped: " << problem.what() << '\n';
        result = 1;
    }
    m_startup.reset();
    usePreferencesFile({});
    out() << "Pictures: " << QDir::toNativeSeparators(m_pictures) << '\n';
    out().flush();
    return result;
}

// Nothing of the person's own is touched: home folder, preferences, the place where instances
// meet and the database are the tour's. Dialogs are drawn by the program so that the pictures show
// them.
void Tour::prepare()
{
    need(m_temporary.isValid(), QStringLiteral("there is no place for temporary files"));
    need(QDir().mkpath(m_pictures), QStringLiteral("the folder for the pictures cannot be made"));
    need(QDir().mkpath(m_folder), QStringLiteral("the folder for the database cannot be made"));
    usePreferencesFile(m_temporary.filePath(QStringLiteral("preferences.ini")));
    qputenv("HOME", QFile::encodeName(m_temporary.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_temporary.path()));
    qputenv("NORVANE_PASSWORD", "sysop");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_visitor = std::make_unique<TourVisitor>();
}

void Tour::step(const QString &what, const std::function<void()> &body)
{
    ++m_step;
    out() << QString::number(m_step).rightJustified(2) << "  " << what << Qt::endl;
    body();
    settle();
    m_visitor->check();
}

void Tour::need(bool condition, const QString &otherwise)
{
    if (!condition)
        throw TourProblem(otherwise);
}

void Tour::settle()
{
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < paintingTime)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

void Tour::shoot(const QString &name)
{
    settle();
    need(!m_camera.shoot(m_startup->mainWindow(), name).isEmpty(),
         QStringLiteral("a picture cannot be written"));
}

void Tour::press(const QString &action)
{
    auto *command = m_startup->mainWindow()->findChild<QAction *>(action);
    need(command != nullptr && command->isEnabled() && command->isVisible(),
         action + QLatin1String(" is not there to be chosen"));
    command->trigger();
    settle();
}

void Tour::pressAndAnswer(const QString &action)
{
    press(action);
    m_visitor->check();
}

QString Tour::secondStation(const QStringList &arguments)
{
    const QString program =
        QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("norvanectl"));
    const ProgramResult result = host().run(program, arguments, 60000);
    need(result.ended && result.exitCode == 0,
         QLatin1String("the second workstation (norvanectl) failed: ") +
             QString::fromLocal8Bit(result.errors));
    return QString::fromUtf8(result.output);
}
