#include "common/ui/Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// The resource stands in a static library and must be named to be linked; the macro wants the
// global namespace.
static void initIconResource()
{
    Q_INIT_RESOURCE(icons);
}

namespace
{

QString pathOf(const QString &name)
{
    static const bool ready = (initIconResource(), true);
    Q_UNUSED(ready)
    return QLatin1String(":/icons/") + name + QLatin1String(".svg");
}

class SvgIconEngine : public QIconEngine
{
public:
    SvgIconEngine(QString name, QByteArray svg) : m_name(std::move(name)), m_svg(std::move(svg)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray drawing = m_svg;
        drawing.replace("currentColor", lineColour(mode).name().toLatin1());
        QSvgRenderer renderer(drawing);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        const qreal before = painter->opacity();
        if (mode == QIcon::Disabled)
            painter->setOpacity(before * 0.5); // lines of a colour of their own fade as well
        renderer.render(painter, rect);
        painter->setOpacity(before);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString key = QStringLiteral("norvane-icon/%1/%2x%3/%4/%5")
                                .arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(static_cast<int>(mode))
                                .arg(lineColour(mode).name());
        QPixmap result;
        if (QPixmapCache::find(key, &result))
            return result;
        result = QPixmap(size);
        result.fill(Qt::transparent);
        QPainter painter(&result);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        painter.end();
        QPixmapCache::insert(key, result);
        return result;
    }

    QIconEngine *clone() const override { return new SvgIconEngine(*this); }
    QString iconName() override { return m_name; }

private:
    static QColor lineColour(QIcon::Mode mode)
    {
        const QPalette palette = QApplication::palette();
        if (mode == QIcon::Selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        return palette.color(QPalette::Active, QPalette::WindowText);
    }

    QString m_name;
    QByteArray m_svg;
};

} // namespace

QIcon icon(const QString &name)
{
    QFile file(pathOf(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new SvgIconEngine(name, file.readAll()));
}

QIcon applicationIcon()
{
    return icon(QStringLiteral("norvane"));
}
