#include "shell/TourVisitor.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>

#include <utility>

namespace
{

constexpr int glance = 60; // milliseconds; a window is laid out and painted in between

QString wordsOn(const QWidget *window)
{
    QStringList words{window->windowTitle()};
    for (const QLabel *label : window->findChildren<QLabel *>())
        words += label->text();
    for (const QPlainTextEdit *text : window->findChildren<QPlainTextEdit *>())
        words += text->toPlainText();
    words.removeAll(QString());
    return words.join(QLatin1String(" / "));
}

} // namespace

TourVisitor::TourVisitor(QObject *parent) : QObject(parent)
{
    QTimer::singleShot(glance, this, &TourVisitor::look);
}

void TourVisitor::expect(const QString &className, Action action)
{
    m_turns.push_back({className, std::move(action)});
}

void TourVisitor::check()
{
    if (m_problem.isEmpty() && !m_turns.empty())
        m_problem = m_turns.front().className + QLatin1String(" did not come up");
    if (!m_problem.isEmpty())
        throw TourProblem(m_problem);
}

// The next look is arranged first: the action may open a window and wait for it.
void TourVisitor::look()
{
    QTimer::singleShot(glance, this, &TourVisitor::look);
    QWidget *window = QApplication::activeModalWidget();
    if (window != nullptr && window != m_met)
        meet(window);
    else if (window == nullptr)
        m_met = nullptr;
}

// Nothing may be thrown through the event loop.
void TourVisitor::meet(QWidget *window)
{
    QWidget *const behind = std::exchange(m_met, window); // one may open over another
    const QString name = QString::fromLatin1(window->metaObject()->className());
    if (m_problem.isEmpty() && (m_turns.empty() || m_turns.front().className != name))
        m_problem = name + QLatin1String(" came up unexpected: ") + wordsOn(window);
    if (m_problem.isEmpty()) {
        const Action action = std::move(m_turns.front().action);
        m_turns.pop_front();
        try {
            action(window);
            m_met = behind;
            return;
        } catch (const TourProblem &problem) {
            m_problem = QString::fromUtf8(problem.what());
        }
    }
    if (auto *dialog = qobject_cast<QDialog *>(window))
        dialog->reject();
}
