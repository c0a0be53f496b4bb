// The steps from the command line to the main window with its database.
#pragma once

#include "shell/frmMain.h"
#include "shell/frmSplash.h"
#include "shell/SingleInstance.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class Startup : public QObject
{
    Q_OBJECT
public:
    // The data folder named on the command line, empty when none is. The arguments do not hold the
    // program's name.
    static QString folderFromCommandLine(const QStringList &arguments);

    // Whether a program with this folder may run: a second instance only on a folder of its own.
    // Otherwise the person is told, and the running instance's window raised.
    static bool mayRun(SingleInstance &instance, const QString &folder);

    explicit Startup(QString folder);
    // Closes the database if the main window did not.
    ~Startup() override;

    // False when the program must end: another instance is running and has been raised.
    bool run();
    // Null before the main window is made.
    frmMain *mainWindow() const { return m_main.get(); }

private:
    // An unexpected failure takes the splash away, is reported, and the next step follows.
    void step(const std::function<void()> &body);
    void showSplash();
    void waitForSplash();
    void showMain();
    void openDatabase();
    void raiseMain();

    QString m_folder;
    SingleInstance m_instance;
    std::unique_ptr<frmSplash> m_splash;
    std::unique_ptr<frmMain> m_main;
};
