#include "common/ui/FixedFont.h"

#include <QFontMetrics>
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
    const QStringList lines = text.split(u'\n');
    qsizetype columns = least.width();
    for (const QString &line : lines)
        columns = std::max(columns, line.size());
    columns = std::min<qsizetype>(columns, most.width());
    qsizetype rows = 0;
    for (const QString &line : lines) // a long line is wrapped
        rows += 1 + std::max<qsizetype>(line.size() - 1, 0) / columns;
    rows = std::clamp<qsizetype>(rows, least.height(), most.height());
    // Room for the box's frame, its document margin and a scroll bar.
    const QSize wanted(static_cast<int>(columns + 4) * columnWidth,
                       static_cast<int>(rows + 1) * metrics.lineSpacing());
    const QScreen *screen = widget->screen();
    return screen != nullptr ? wanted.boundedTo(screen->availableSize() * 4 / 5) : wanted;
}
