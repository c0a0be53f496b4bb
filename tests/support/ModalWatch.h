// Rejects a modal window that no driver answers within about a second, and fails the running test
// with its text: a forgotten box costs a second instead of the whole time limit.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class ModalWatch : public QObject
{
public:
    ModalWatch();

private:
    void look();

    QTimer m_timer;
    QPointer<QWidget> m_seen;
    int m_ticks = 0;
};
