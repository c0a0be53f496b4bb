#include "shell/ChildWindow.h"

#include "common/base/Preferences.h"

#include <QEvent>
#include <QMdiArea>
#include <QStringList>

namespace
{

QSize sizeFromText(const QString &text)
{
    const QStringList parts = text.split(u'x');
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

} // namespace

ChildWindow::ChildWindow(QWidget *form)
{
    setWidget(form);
    setAttribute(Qt::WA_DeleteOnClose);
}

QString ChildWindow::sizeName() const
{
    return u"size_" + QString::fromLatin1(widget()->metaObject()->className());
}

void ChildWindow::openAtItsSize()
{
    const QSize room = mdiArea()->viewport()->size();
    QSize wanted = sizeFromText(GetPrefStr(sizeName()));
    if (wanted.width() < 1 || wanted.height() < 1)
        wanted = sizeHint().expandedTo(size());
    resize(wanted.boundedTo(room));
    noteSizeGiven();
    // The area puts windows beside each other where there is room, and may reach beyond its edge.
    const QPoint lowest(qMax(0, room.width() - width()), qMax(0, room.height() - height()));
    move(qBound(0, x(), lowest.x()), qBound(0, y(), lowest.y()));
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
