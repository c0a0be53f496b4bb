#include "common/ui/FormWindow.h"

#include "common/base/Prompts.h"

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <functional>

namespace
{

QList<FormWindow *> &registry()
{
    static QList<FormWindow *> forms;
    return forms;
}

QMdiSubWindow *frameOf(const QWidget *form)
{
    return qobject_cast<QMdiSubWindow *>(form->parentWidget());
}

void bringToTop(FormWindow *form)
{
    QMdiSubWindow *frame = frameOf(form);
    QWidget *window = frame != nullptr ? frame : form->window();
    if (window->isMinimized() || (frame != nullptr && frame->isShaded()))
        window->showNormal();
    window->show();
    window->raise();
    if (frame != nullptr && frame->mdiArea() != nullptr)
        frame->mdiArea()->setActiveSubWindow(frame);
    else
        window->activateWindow();
}

// Closing a form may close or open others, so the walk is over guarded copies. Stops at the
// first form that refuses. While something is under way its form would refuse, and the others
// would be gone by then: so none is closed.
bool closeAll(const std::function<bool(const FormWindow *)> &wanted)
{
    if (prompts::isWorking())
        return std::none_of(openForms().begin(), openForms().end(), wanted);
    QList<QPointer<FormWindow>> forms;
    for (FormWindow *form : openForms())
        forms.append(form);
    for (const QPointer<FormWindow> &form : std::as_const(forms))
        if (form && openForms().contains(form.data()) && wanted(form) && !form->close())
            return false;
    return std::none_of(openForms().begin(), openForms().end(), wanted);
}

bool isEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

QPushButton *buttonForKey(const QWidget *form, const QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        return form->findChild<QPushButton *>(QStringLiteral("CancelButton"));
    if (!isEnter(event))
        return nullptr;
    if (auto *focused = qobject_cast<QPushButton *>(form->focusWidget()))
        return focused;
    const QList<QPushButton *> buttons = form->findChildren<QPushButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), [](const QPushButton *button) {
        return button->isDefault() && button->isVisible();
    });
    return found == buttons.end() ? nullptr : *found;
}

} // namespace

FormWindow::FormWindow(QWidget *parent) : QWidget(parent)
{
    registry().append(this);
}

FormWindow::~FormWindow()
{
    registry().removeAll(this);
}

QString FormWindow::formName() const
{
    return QString::fromLatin1(metaObject()->className());
}

// A closed form leaves the registry at once, not when it is deleted some events later: the same
// record may be opened again in between. One that was only hidden comes back when it is shown.
bool FormWindow::event(QEvent *event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Close && event->isAccepted()) {
        registry().removeAll(this);
        if (QMdiSubWindow *frame = frameOf(this))
            frame->close(); // does nothing when the close came from there
    } else if (event->type() == QEvent::Show && !registry().contains(this)) {
        registry().append(this);
    }
    return done;
}

// A dialog has this from the toolkit, a window beside others has not.
void FormWindow::keyPressEvent(QKeyEvent *event)
{
    if (QPushButton *button = buttonForKey(this, event))
        button->click(); // does nothing while it is disabled
    else
        QWidget::keyPressEvent(event);
}

const QList<FormWindow *> &openForms()
{
    return registry();
}

bool IsFormLoaded(const QString &tag)
{
    return GetFormWithTag(tag) != nullptr;
}

FormWindow *GetFormWithTag(const QString &tag)
{
    for (FormWindow *form : openForms())
        if (form->tagText() == tag)
            return form;
    return nullptr;
}

void BringFormToTop(const QString &tag)
{
    if (FormWindow *form = GetFormWithTag(tag))
        bringToTop(form);
}

bool UnloadAll(const QString &exceptTag)
{
    return closeAll([exceptTag](const FormWindow *form) { return form->tagText() != exceptTag; });
}

bool UnloadForm(const QString &formName)
{
    return closeAll([formName](const FormWindow *form) { return form->formName() == formName; });
}
