// What the steps of the tour do with the windows in front of them.
#pragma once

#include "common/ui/FormWindow.h"
#include "shell/Tour.h"

class QLineEdit;

namespace hands
{

void typeInto(QLineEdit *box, const QString &text); // over what the box holds
void pressEnter(QWidget *widget);
void pressOk(QWidget *dialog);

} // namespace hands

template <class Control>
Control *Tour::control(QWidget *window, const char *name)
{
    auto *found = window->findChild<Control *>(QString::fromLatin1(name));
    need(found != nullptr, QLatin1String(name) + QLatin1String(" is not there"));
    return found;
}

template <class Form>
Form *Tour::newestForm()
{
    const QList<FormWindow *> &forms = openForms();
    for (auto form = forms.crbegin(); form != forms.crend(); ++form) {
        if (auto *found = qobject_cast<Form *>(*form))
            return found;
    }
    throw TourProblem(QString::fromLatin1(Form::staticMetaObject.className()) +
                      QLatin1String(" did not open"));
}
