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

// Rows of one column or, side by side, of several; the same the other way round.
using Band = QList<QMdiSubWindow *>;

QList<Band> inBands(const QList<QMdiSubWindow *> &windows, int count)
{
    QList<Band> bands;
    int taken = 0;
    for (int band = 0; band < count; ++band) {
        const int left = static_cast<int>(windows.size()) - taken;
        const int here = (left + count - band - 1) / (count - band);
        bands += windows.mid(taken, here);
        taken += here;
    }
    return bands;
}

struct Room {
    bool rows; // windows of a band stand below each other
    QSize size;

    int along(QSize extent) const { return rows ? extent.height() : extent.width(); }
    int across(QSize extent) const { return rows ? extent.width() : extent.height(); }
    QList<int> needs(const Band &band) const
    {
        QList<int> lengths;
        for (const QMdiSubWindow *window : band)
            lengths += along(window->minimumSizeHint());
        return lengths;
    }
    int breadth(const Band &band) const
    {
        int most = 0;
        for (const QMdiSubWindow *window : band)
            most = qMax(most, across(window->minimumSizeHint()));
        return most;
    }
    bool holds(const QList<Band> &bands) const
    {
        int breadths = 0;
        for (const Band &band : bands) {
            const QList<int> lengths = needs(band);
            if (std::accumulate(lengths.begin(), lengths.end(), 0) > along(size))
                return false;
            breadths += breadth(band);
        }
        return breadths <= across(size);
    }
    QRect place(int start, int length, int from, int breadth) const
    {
        return rows ? QRect(from, start, breadth, length) : QRect(start, from, length, breadth);
    }
};

// As few bands as hold every window; one, where nothing does.
QList<Band> bandsFor(const Room &room, const QList<QMdiSubWindow *> &windows)
{
    for (int count = 1; count <= windows.size(); ++count) {
        const QList<Band> bands = inBands(windows, count);
        if (room.holds(bands))
            return bands;
    }
    return {windows};
}

} // namespace

void tileWindows(QMdiArea *area, Tiling tiling)
{
    const Room room{tiling == Tiling::Horizontally, area->viewport()->size()};
    const QList<Band> bands = bandsFor(room, windowsOf(area, false));
    QList<int> wanted;
    for (const Band &band : bands)
        wanted += room.breadth(band);
    const QList<int> breadths = shares(room.across(room.size), wanted);
    int from = 0;
    for (int at = 0; at < bands.size(); ++at) {
        const QList<int> parts = shares(room.along(room.size), room.needs(bands[at]));
        int start = 0;
        for (int row = 0; row < parts.size(); ++row) {
            // With too little room for all, the last ones overlap; none is cut off.
            const int place = qBound(0, start, qMax(0, room.along(room.size) - parts[row]));
            QMdiSubWindow *window = bands[at][row];
            window->showNormal();
            window->setGeometry(room.place(place, parts[row], from, breadths[at]));
            start += parts[row];
        }
        from += breadths[at];
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
