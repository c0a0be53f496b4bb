#include "shell/MdiArrange.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace
{

QList<QMdiSubWindow *> windowsOf(const QMdiArea *area, bool minimised)
{
    QList<QMdiSubWindow *> windows;
    for (QMdiSubWindow *window : area->subWindowList(QMdiArea::StackingOrder)) {
        if (window->isVisible() && window->isMinimized() == minimised)
            windows.prepend(window);
    }
    return windows;
}

} // namespace

void tileWindows(QMdiArea *area, Tiling tiling)
{
    const QList<QMdiSubWindow *> windows = windowsOf(area, false);
    const int count = static_cast<int>(windows.size());
    const QSize room = area->viewport()->size();
    for (int at = 0; at < count; ++at) {
        windows[at]->showNormal();
        if (tiling == Tiling::Horizontally) {
            const int top = room.height() * at / count;
            windows[at]->setGeometry(0, top, room.width(), room.height() * (at + 1) / count - top);
        } else {
            const int left = room.width() * at / count;
            windows[at]->setGeometry(left, 0, room.width() * (at + 1) / count - left,
                                     room.height());
        }
    }
}

void arrangeIcons(QMdiArea *area)
{
    const QSize room = area->viewport()->size();
    int left = 0;
    int bottom = room.height();
    for (QMdiSubWindow *icon : windowsOf(area, true)) {
        if (left > 0 && left + icon->width() > room.width()) {
            left = 0;
            bottom -= icon->height();
        }
        icon->move(left, bottom - icon->height());
        left += icon->width();
    }
}
