// Answers the next modal window of ours as a person would: made before the call that shows it,
// it runs its steps on the window once that is up. A window that never came fails the test.
// Several drivers answer one window each, in the order they were made.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;

class DialogDriver : public QObject
{
public:
    explicit DialogDriver(std::function<void(QWidget *dialog)> steps);
    ~DialogDriver() override;

    bool done() const { return m_done; }
    // Whether any driver still has a window to come, or is at work.
    static bool anyWaiting();

private:
    void look();

    std::function<void(QWidget *)> m_steps;
    QTimer m_timer;
    bool m_done = false;
};

// Clicks the button with that text or object name; fails the test when there is none.
void clickButton(QWidget *window, const QString &textOrName);
