#include "shell/clsWndStartupPos.h"

#include "common/base/Preferences.h"

#include <QScreen>
#include <QWidget>

namespace
{

// Values of "windowstate".
enum WindowState : qint32 { Normal = 0, Maximised = 2 };

bool onScreen(const QRect &place, const QSize &screen)
{
    return place.top() >= 0 && place.top() <= screen.height() && place.left() >= 0 &&
           place.left() <= screen.width() && place.width() >= 1 && place.height() >= 1;
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
    const QRect place(GetValueLong(QStringLiteral("left")), GetValueLong(QStringLiteral("top")),
                      GetValueLong(QStringLiteral("width")),
                      GetValueLong(QStringLiteral("height")));
    if (GetValueLong(QStringLiteral("windowstate")) == Maximised ||
        !onScreen(place, form->screen()->virtualSize())) {
        form->setWindowState(Qt::WindowMaximized);
        return;
    }
    form->setWindowState(Qt::WindowNoState);
    form->move(place.topLeft());
    form->resize(place.size());
}

qint32 clsWndStartupPos::GetValueLong(const QString &name)
{
    return GetPrefLong(name);
}
