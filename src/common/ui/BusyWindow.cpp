#include "common/ui/BusyWindow.h"

#include "common/base/Host.h"
#include "common/ui/Controls.h"

#include <QEvent>
#include <QWidget>

BusyWindow::BusyWindow(QWidget *window) : m_window(window), m_focus(window->focusWidget())
{
    window->installEventFilter(this);
    switchOff(window);
}

BusyWindow::~BusyWindow()
{
    if (!m_window)
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
