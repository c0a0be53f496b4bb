#include "shell/ChildWindow.h"

#include "common/base/Preferences.h"

#include <QEvent>
#include <QMdiArea>
#include <QStringList>
#include <QStyle>

namespace
{

QSize sizeFromText(const QString &text)
{
    const QStringList parts = text.split(u'x');
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

} // namespace

// A widget that gets a parent forgets which of its controls has the focus.
ChildWindow::ChildWindow(QWidget *form) : m_firstFocus(form->focusWidget())
{
    setWidget(form);
    setAttribute(Qt::WA_DeleteOnClose);
}

QString ChildWindow::sizeName() const
{
    return u"size_" + QString::fromLatin1(widget()->metaObject()->className());
}

void ChildWindow::openAtItsSize(const QMdiSubWindow *behind)
{
    if (isMaximized()) // like the window that was in use
        return;
    const QSize room = mdiArea()->viewport()->size();
    QSize wanted = sizeFromText(GetPrefStr(sizeName()));
    if (wanted.width() < 1 || wanted.height() < 1)
        wanted = sizeHint().expandedTo(size());
    resize(wanted.boundedTo(room));
    noteSizeGiven();

    QPoint place;
    if (behind != nullptr && !behind->isMinimized()) {
        const int step = style()->pixelMetric(QStyle::PM_TitleBarHeight) + 4;
        place = behind->pos() + QPoint(step, step);
    }
    const QPoint lowest(room.width() - width(), room.height() - height());
    if (place.x() > lowest.x() || place.y() > lowest.y())
        place = {qBound(0, place.x(), lowest.x()), 0}; // from the top again
    move(place);
}

void ChildWindow::focusForm()
{
    QWidget *const form = widget();
    QWidget *first = m_firstFocus;
    // The chain leads through all windows of the main window.
    for (QWidget *at = form->nextInFocusChain(); first == nullptr && at != form;
         at = at->nextInFocusChain()) {
        if (form->isAncestorOf(at) && at->isEnabled() && at->isVisible() &&
            (at->focusPolicy() & Qt::TabFocus) != 0)
            first = at;
    }
    if (first != nullptr)
        first->setFocus();
}

void ChildWindow::rememberSize() const
{
    if (!isMaximized() && !isMinimized() && !isShaded() && size() != m_sizeGiven)
        SetPrefStr(sizeName(), QString::number(width()) + u'x' + QString::number(height()));
}

// The form may be closed by itself, without its frame being asked.
bool ChildWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == widget())
        rememberSize();
    return QMdiSubWindow::eventFilter(watched, event);
}
