#include "common/ui/FixedFont.h"

#include <QFontMetrics>
#include <QRect>
#include <QScreen>
#include <QWidget>

#include <algorithm>

QFont fixedPitchFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                      QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Monospace")});
    font.setStyleHint(QFont::Monospace, QFont::PreferQuality);
    font.setFixedPitch(true);
    return font;
}

QSize fixedPitchSize(const QWidget *widget, const QString &text, QSize least, QSize most)
{
    const QFontMetrics metrics(fixedPitchFont());
    const int columnWidth = metrics.horizontalAdvance(u'M');
    // More than fills the largest box need not be measured.
    const QString sample = text.left(most.width() * most.height());
    int columns = least.width();
    for (const QString &line : sample.split(u'\n'))
        columns = std::max(columns, static_cast<int>(line.size()));
    columns = std::min(columns, most.width());
    const QRect page(0, 0, columns * columnWidth, QWIDGETSIZE_MAX);
    const int height = metrics.boundingRect(page, Qt::TextWordWrap, sample).height();
    const int rows = std::clamp(height / metrics.lineSpacing() + 1, least.height(), most.height());
    // Room for the box's frame, its document margin and a scroll bar.
    const QSize wanted((columns + 4) * columnWidth, (rows + 1) * metrics.lineSpacing());
    const QScreen *screen = widget->screen();
    return screen != nullptr ? wanted.boundedTo(screen->availableSize() * 4 / 5) : wanted;
}
