#include "common/ui/BusyWindow.h"

#include "common/base/Host.h"
#include "common/ui/Controls.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <QWidget>

#include <utility>

namespace
{

QWidget *windowOf(QWidget *control)
{
    QWidget *above = control->parentWidget();
    while (above != nullptr && !control->isWindow() && !qobject_cast<QMdiSubWindow *>(above))
        control = std::exchange(above, above->parentWidget());
    return control;
}

} // namespace

BusyWindow::BusyWindow(QWidget *control)
{
    QWidget *window = windowOf(control);
    m_window = window;
    m_focus = window->focusWidget();
    m_wasOn = window->isEnabled();
    window->installEventFilter(this);
    switchOff(window);
}

BusyWindow::~BusyWindow()
{
    if (!m_window || !m_wasOn)
        return;
    m_window->setEnabled(true);
    if (m_focus)
        m_focus->setFocus();
}

bool BusyWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

bool WaitDlgGoesOn(const WaitDlg &form, int percent)
{
    clsSystem::WaitDlgUpdate(form, percent);
    host().pumpEvents();
    return !form || !form->cancelled();
}
