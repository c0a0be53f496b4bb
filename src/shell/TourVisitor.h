// Sits at the screen during the tour: acts on the modal windows that come up while the program
// waits for a person. Each expected window has its turn, in order.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>

#include <deque>
#include <functional>
#include <stdexcept>

// Why the tour cannot go on.
class TourProblem : public std::runtime_error
{
public:
    explicit TourProblem(const QString &what) : std::runtime_error(what.toStdString()) {}
};

class TourVisitor : public QObject
{
    Q_OBJECT
public:
    using Action = std::function<void(QWidget *window)>;

    explicit TourVisitor(QObject *parent = nullptr);

    // The next modal window must be of this class; the action ends it.
    void expect(const QString &className, Action action);
    // Throws what went wrong since the last call; a window that did not come is a problem too.
    void check();

private:
    void look();
    void meet(QWidget *window);

    struct Turn {
        QString className;
        Action action;
    };
    std::deque<Turn> m_turns;
    QWidget *m_met = nullptr; // compared only
    QString m_problem;
};
