// While one lives, the window that the control is on, or is itself, takes no input and refuses to
// close: for work that lets events through so that the progress window over it can be cancelled.
#pragma once

#include "common/base/clsSystem.h"

#include <QObject>
#include <QPointer>

class QWidget;

class BusyWindow : public QObject
{
public:
    // The progress window must be made after it: windows that are there already are switched off.
    explicit BusyWindow(QWidget *control);
    ~BusyWindow() override;
    Q_DISABLE_COPY_MOVE(BusyWindow)

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_window;
    QPointer<QWidget> m_focus;
    bool m_wasOn = true; // false within another one
};

// For the steps of such work: moves the bar and lets events through; false once Cancel was pressed.
bool WaitDlgGoesOn(const WaitDlg &form, int percent);
