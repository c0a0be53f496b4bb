#include "shell/TourHands.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

void hands::typeInto(QLineEdit *box, const QString &text)
{
    box->setFocus();
    box->selectAll();
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QApplication::sendEvent(box, &press);
    }
}

void hands::pressEnter(QWidget *widget)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
}

void hands::pressOk(QWidget *dialog)
{
    dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
}
