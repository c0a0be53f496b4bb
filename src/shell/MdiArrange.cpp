#include "shell/MdiArrange.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

#include <algorithm>
#include <numeric>

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

// Equal parts of the room, but for windows that need more than their part: those are served first,
// the neediest at the head.
QList<int> shares(int room, const QList<int> &needs)
{
    QList<int> order(needs.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&needs](int one, int other) { return needs[one] > needs[other]; });
    QList<int> result(needs.size(), 0);
    int waiting = static_cast<int>(needs.size());
    for (const int at : order) {
        result[at] = qMax(needs[at], room / qMax(1, waiting));
        room -= result[at];
        --waiting;
    }
    return result;
}

} // namespace

void tileWindows(QMdiArea *area, Tiling tiling)
{
    const bool rows = tiling == Tiling::Horizontally;
    const QSize room = area->viewport()->size();
    const int length = rows ? room.height() : room.width();
    const QList<QMdiSubWindow *> windows = windowsOf(area, false);
    QList<int> needs;
    for (const QMdiSubWindow *window : windows)
        needs += rows ? window->minimumSizeHint().height() : window->minimumSizeHint().width();
    const QList<int> parts = shares(length, needs);
    int start = 0;
    for (int at = 0; at < windows.size(); ++at) {
        // With too little room for all, the last ones overlap; none is cut off.
        const int place = qBound(0, start, qMax(0, length - parts[at]));
        windows[at]->showNormal();
        windows[at]->setGeometry(rows ? QRect(0, place, room.width(), parts[at])
                                      : QRect(place, 0, parts[at], room.height()));
        start += parts[at];
    }
}

void cascadeWindows(QMdiArea *area)
{
    const QSize room = area->viewport()->size();
    int offset = 0;
    QList<QMdiSubWindow *> windows = windowsOf(area, false);
    std::reverse(windows.begin(), windows.end()); // the one in front comes last
    for (QMdiSubWindow *window : windows) {
        const int step = window->style()->pixelMetric(QStyle::PM_TitleBarHeight) + 4;
        if (offset > room.height() / 3)
            offset = 0;
        window->showNormal();
        window->move(offset, offset);
        window->resize(window->sizeHint().boundedTo(room - QSize(offset, offset)));
        window->raise();
        offset += step;
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
