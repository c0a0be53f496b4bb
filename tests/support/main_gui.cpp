// Entry of the test programs that have windows.
#include "common/base/Host.h"
#include "common/base/Prompts.h"
#include "common/ui/GuiDoors.h"

#include "support/ModalWatch.h"
#include "support/TempPreferences.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include <cstdio>

namespace
{

// No window, cursor or pending deletion of one test reaches the next.
class WindowSweeper : public ::testing::EmptyTestEventListener
{
    void OnTestEnd(const ::testing::TestInfo &) override
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        host().setBusy(false);
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows)
            if (window->isVisible())
                window->hide();
    }
};

// The offscreen platform says of each window what it cannot do; all else is worth reading.
void dropPlatformChatter(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    ::testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(dropPlatformChatter);
    QStandardPaths::setTestModeEnabled(true);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    const TempPreferences preferences;
    installGuiDoors(nullptr);
    prepareTestEnvironment(); // puts the doors a test must script before the real ones
    const ModalWatch watch;
    ::testing::UnitTest::GetInstance()->listeners().Append(new WindowSweeper);
    return RUN_ALL_TESTS();
}
