#include "common/ui/Help.h"

#include "common/base/AppInfo.h"
#include "common/base/Prompts.h"
#include "common/ui/FormWindow.h"
#include "common/ui/HelpPopup.h"
#include "common/ui/HelpWindow.h"
#include "common/ui/Switchboard.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPointer>

namespace
{

// One for the program, and one inside each modal window that asks: a modal window lets nothing be
// used that is not its child.
HelpWindow *helpWindow()
{
    QWidget *modal = QApplication::activeModalWidget();
    const QString name = QStringLiteral("helpWindow");
    if (modal != nullptr) {
        if (auto *inside = modal->findChild<HelpWindow *>(name))
            return inside;
    }
    static QPointer<HelpWindow> alone;
    if (modal == nullptr && alone)
        return alone;
    auto *window = new HelpWindow(HelpFilename(), modal);
    window->setObjectName(name);
    window->setAttribute(Qt::WA_DeleteOnClose);
    if (modal == nullptr)
        alone = window;
    return window;
}

bool manualIsThere()
{
    if (QFileInfo(HelpFilename()).isReadable())
        return true;
    prompts::warn(QObject::tr("Unable to open the user manual '%1'. Please install %2 again.")
                      .arg(QDir::toNativeSeparators(HelpFilename()), app::title()));
    return false;
}

// Boxes of the toolkit carry their topic as a property.
int ownTopic(const QWidget *widget)
{
    if (const auto *form = qobject_cast<const FormWindow *>(widget))
        return form->helpTopic();
    return widget->property("helpTopic").toInt();
}

bool isBox(const QWidget *window)
{
    return window->inherits("QMessageBox") || window->inherits("QInputDialog");
}

// The topic of the window that the widget stands in, the nearest that has one; 0: none.
int helpTopicOf(const QWidget *widget)
{
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (const int topic = ownTopic(widget))
            return topic;
    }
    return 0;
}

class HelpKey : public QObject
{
public:
    explicit HelpKey(QCoreApplication *application) : QObject(application)
    {
        application->installEventFilter(this);
    }

    bool eventFilter(QObject *target, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress || !target->isWidgetType())
            return false;
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
            return false;
        const auto *widget = static_cast<const QWidget *>(target);
        const int topic = helpTopicOf(widget);
        if (topic > 0 && isBox(widget->window()))
            ShowHelpTopicPopup(topic);
        else
            switchboard().showHelp(topic);
        return true;
    }
};

} // namespace

QString HelpFilename()
{
    return app::programFolder() + QLatin1String("/userman.hlp");
}

bool ShowHelpContents()
{
    return ShowHelpTopic(0);
}

bool ShowHelpTopic(int topic)
{
    if (!manualIsThere())
        return false;
    HelpWindow *window = helpWindow();
    window->showTopic(topic);
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
    return true;
}

bool ShowHelpTopicPopup(int topic)
{
    if (!manualIsThere())
        return false;
    auto *popup = new HelpPopup(HelpFilename(), topic, QApplication::activeWindow());
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->showOverParent();
    return true;
}

void installHelpKey()
{
    static const QPointer<HelpKey> key = new HelpKey(qApp);
}
