#include "support/ModalWatch.h"

#include "support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>

namespace
{

// Ticks, not time: a slow step of a driver holds the timer back as well.
constexpr int tickMs = 100;
constexpr int patience = 10;

QString wordsOf(const QWidget *window)
{
    QString words = QString::fromLatin1(window->metaObject()->className()) + QLatin1String(" \"") +
                    window->windowTitle() + u'"';
    const auto labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        if (!label->text().isEmpty())
            words += u'\n' + label->text();
    return words;
}

} // namespace

ModalWatch::ModalWatch()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalWatch::look);
    m_timer.start(tickMs);
}

void ModalWatch::look()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (modal != m_seen || DialogDriver::anyWaiting()) {
        m_seen = modal;
        m_ticks = 0;
        return;
    }
    if (modal == nullptr || ++m_ticks < patience)
        return;
    m_ticks = 0;
    ADD_FAILURE() << "a modal window stood unanswered: " << qPrintable(wordsOf(modal));
    if (auto *dialog = qobject_cast<QDialog *>(modal))
        dialog->done(QDialog::Rejected); // past a form's own reject(), which may ask again
    else
        modal->close();
}
