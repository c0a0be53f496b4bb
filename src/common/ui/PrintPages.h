// A document on a printing device, drawn in twips (1440 to the inch) from the corner of what the
// device can print on.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <array>

// The font at its size in twips. Its measures are the same on every device, so that the preview
// breaks lines and pages where the printer does.
QFont twipFont(const QFont &font);

// Line ends and tabs become blanks.
QString oneLine(const QString &text);

// A font of the document with what is measured by it.
class PrintFont
{
public:
    explicit PrintFont(const QFont &font);

    const QFont &font() const { return m_font; }
    qreal lineHeight() const { return m_metrics.height(); }
    qreal ascent() const { return m_metrics.ascent(); }
    qreal width(const QString &text) const { return m_metrics.horizontalAdvance(text); }
    // As one line that is narrower than the width; a cut one ends in "..".
    QString fitted(const QString &text, qreal width) const;

private:
    struct Guess {
        bool fits;        // for sure
        qsizetype length; // so many of the letters are too wide already, or all there are
    };
    Guess guess(QStringView line, qreal width) const;

    static constexpr int KnownLetters = 256;
    QFont m_font;
    QFontMetricsF m_metrics;
    std::array<qreal, KnownLetters> m_letterWidths{};
};

class PrintPages
{
public:
    // Begins the document; a device that refuses is a Failure. The end of the object ends it.
    explicit PrintPages(QPagedPaintDevice &device);

    qreal width() const { return m_area.width(); }
    qreal height() const { return m_area.height(); }
    QPainter &painter() { return m_painter; }
    void text(qreal x, qreal y, const PrintFont &font, const QString &text); // y is the upper edge
    void newPage(); // a device that refuses is a Failure
    void abandon(); // ends the document unfinished; nothing comes out where that can be helped

private:
    QPagedPaintDevice &m_device;
    QPainter m_painter;
    QRectF m_area;
    QFont m_fontInUse;
};
