#include "shell/clsWndStartupPos.h"

#include "common/base/Preferences.h"

#include <QScreen>
#include <QWidget>

namespace
{

// Values of "windowstate".
enum WindowState : qint32 { Normal = 0, Maximised = 2 };

bool onScreen(const QPoint &corner, const QSize &size, const QSize &screen)
{
    return corner.y() >= 0 && corner.y() <= screen.height() && corner.x() >= 0 &&
           corner.x() <= screen.width() && size.width() >= 1 && size.height() >= 1;
}

} // namespace

void clsWndStartupPos::SavePosition(const QWidget *form)
{
    if (form->isMinimized())
        return;
    SetPrefLong(QStringLiteral("top"), form->y());
    SetPrefLong(QStringLiteral("left"), form->x());
    SetPrefLong(QStringLiteral("width"), form->width());
    SetPrefLong(QStringLiteral("height"), form->height());
    SetPrefLong(QStringLiteral("windowstate"), form->isMaximized() ? Maximised : Normal);
}

void clsWndStartupPos::RestorePosition(QWidget *form)
{
    const QPoint corner(GetValueLong(QStringLiteral("left")), GetValueLong(QStringLiteral("top")));
    const QSize size(GetValueLong(QStringLiteral("width")), GetValueLong(QStringLiteral("height")));
    const QSize screen = form->screen()->virtualSize();
    if (GetValueLong(QStringLiteral("windowstate")) == Maximised ||
        !onScreen(corner, size, screen)) {
        form->setWindowState(Qt::WindowMaximized);
        return;
    }
    form->setWindowState(Qt::WindowNoState);
    form->move(corner);
    form->resize(size.boundedTo(screen));
}

qint32 clsWndStartupPos::GetValueLong(const QString &name)
{
    return GetPrefLong(name);
}
