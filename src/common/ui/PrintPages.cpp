#include "common/ui/PrintPages.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"

#include <QCoreApplication>
#include <QFontInfo>
#include <QPaintEngine>
#include <QPrinter>

#include <algorithm>
#include <cmath>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PrintPages)
};

constexpr qreal kTwipsPerPoint = 20;
constexpr qreal kTwipsPerInch = 1440;

[[noreturn]] void refuse()
{
    constexpr int PrinterError = 482;
    throw Failure(PrinterError, app::title(), Words::tr("Printer error"));
}

} // namespace

QFont twipFont(const QFont &font)
{
    QFont result = font;
    const qreal points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    result.setPixelSize(std::max(1, qRound(points * kTwipsPerPoint)));
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QString oneLine(const QString &text)
{
    QString line = text;
    for (QChar &c : line)
        if (c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    return line;
}

PrintFont::PrintFont(const QFont &font) : m_font(twipFont(font)), m_metrics(m_font)
{
    for (int code = 0; code < KnownLetters; ++code)
        m_letterWidths[static_cast<size_t>(code)] = m_metrics.horizontalAdvance(QChar(code));
}

// A quick look by the letters alone, which spares most of the real measuring: side by side they
// take between `tightest` and `widest` of what they take one by one.
PrintFont::Guess PrintFont::guess(QStringView line, qreal width) const
{
    constexpr qreal tightest = 0.8;
    constexpr qreal widest = 1.1;
    qreal sum = 0;
    for (qsizetype at = 0; at < line.size(); ++at) {
        const char16_t letter = line[at].unicode();
        if (letter >= KnownLetters)
            return {false, line.size()};
        sum += m_letterWidths[letter];
        if (sum * tightest >= width)
            return {false, at + 1};
    }
    return {sum * widest < width, line.size()};
}

QString PrintFont::fitted(const QString &text, qreal width) const
{
    // No letter is narrower than a twip: what lies beyond need not be measured.
    const int limit = static_cast<int>(std::floor(std::max<qreal>(width, 0)));
    const QString line = oneLine(text.left(limit + 1));
    const Guess first = guess(line, limit);
    if (first.fits)
        return line;
    const auto measure = [this](const QString &part) {
        return static_cast<int>(std::ceil(m_metrics.horizontalAdvance(part)));
    };
    return clsSystem::TrimTextToFit(measure, line.left(first.length), limit);
}

PrintPages::PrintPages(QPagedPaintDevice &device) : m_device(device)
{
    // The margins are drawn by us, inside what the device can reach.
    QPageLayout page = device.pageLayout();
    page.setMargins(page.minimumMargins());
    device.setPageLayout(page);
    const QRectF points = device.pageLayout().paintRect(QPageLayout::Point);
    m_area = QRectF(0, 0, points.width() * kTwipsPerPoint, points.height() * kTwipsPerPoint);
    if (!m_painter.begin(&device))
        refuse();
    m_painter.scale(device.logicalDpiX() / kTwipsPerInch, device.logicalDpiY() / kTwipsPerInch);
    m_painter.setPen(Qt::black);
}

void PrintPages::text(qreal x, qreal y, const PrintFont &font, const QString &text)
{
    if (m_fontInUse != font.font()) { // setting one costs more than a short text
        m_fontInUse = font.font();
        m_painter.setFont(m_fontInUse);
    }
    m_painter.drawText(QPointF(x, y + font.ascent()), text);
}

void PrintPages::newPage()
{
    if (!m_device.newPage())
        refuse();
}

void PrintPages::abandon()
{
    // The pages of a preview are pictures, which its own abort would delete twice.
    auto *printer = dynamic_cast<QPrinter *>(&m_device);
    if (printer != nullptr && m_painter.paintEngine()->type() != QPaintEngine::Picture)
        printer->abort();
    m_painter.end();
}
