#include "support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace
{

constexpr char answeredMark[] = "norvaneAnswered";

QList<DialogDriver *> &waiting()
{
    static QList<DialogDriver *> drivers;
    return drivers;
}

int &atWork()
{
    static int depth = 0;
    return depth;
}

} // namespace

DialogDriver::DialogDriver(std::function<void(QWidget *)> steps) : m_steps(std::move(steps))
{
    waiting().append(this);
    connect(&m_timer, &QTimer::timeout, this, &DialogDriver::look);
    m_timer.start(5);
}

DialogDriver::~DialogDriver()
{
    waiting().removeAll(this);
    if (!m_done)
        ADD_FAILURE() << "the window that should be answered never came";
}

bool DialogDriver::anyWaiting()
{
    return !waiting().isEmpty() || atWork() > 0;
}

void DialogDriver::look()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (waiting().value(0) != this || dialog == nullptr || !dialog->isVisible() ||
        dialog->property(answeredMark).toBool())
        return;
    m_timer.stop();
    waiting().removeFirst();
    m_done = true;
    dialog->setProperty(answeredMark, true);
    ++atWork();
    m_steps(dialog);
    --atWork();
}

void clickButton(QWidget *window, const QString &textOrName)
{
    const auto plain = [](QString text) { return text.remove(u'&'); };
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons)
        if (button->objectName() == textOrName || plain(button->text()) == plain(textOrName)) {
            ASSERT_TRUE(button->isVisible() && button->isEnabled())
                << "cannot be clicked: " << qPrintable(textOrName);
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    ADD_FAILURE() << "no such button: " << qPrintable(textOrName);
}
