#include "shell/TourCamera.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace
{

// Frames are the window system's, which is not asked; a plain one tells where a dialog ends.
void drawFrame(QPainter &painter, const QRect &content, const QWidget *dialog)
{
    const QPalette palette = QApplication::palette();
    const int height = painter.fontMetrics().height() + 10;
    const QRect title(content.left(), content.top() - height, content.width(), height);
    painter.fillRect(title, palette.color(QPalette::Mid));
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     dialog->windowTitle());
    painter.setPen(palette.color(QPalette::Shadow));
    painter.drawRect(content.united(title).adjusted(-1, -1, 0, 0));
}

bool hasFrame(const QWidget *window)
{
    return !window->windowFlags().testFlag(Qt::FramelessWindowHint) &&
           window->windowType() != Qt::Popup;
}

void drawWindow(QPainter &painter, const QRect &screen, QWidget *window)
{
    QRect place = window->geometry();
    if (window->windowType() == Qt::Popup)
        place.translate(-screen.topLeft());
    else // not every platform centres dialogs
        place.moveCenter(QRect(QPoint(0, 0), screen.size()).center());
    painter.drawPixmap(place.topLeft(), window->grab());
    if (hasFrame(window))
        drawFrame(painter, place, window);
}

int depth(const QWidget *window)
{
    int parents = 0;
    for (const QWidget *at = window->parentWidget(); at != nullptr; at = at->parentWidget())
        ++parents;
    return parents;
}

// A window before those that stand over it.
QWidgetList windowsOver(const QWidget *screen)
{
    QWidgetList windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window != screen && window->isVisible() && window->parentWidget() != nullptr)
            windows += window;
    }
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget *one, const QWidget *other) {
        return depth(one) < depth(other);
    });
    return windows;
}

} // namespace

TourCamera::TourCamera(QString folder) : m_folder(std::move(folder)) {}

QString TourCamera::shoot(const QWidget *screen, const QString &name)
{
    QPixmap picture = const_cast<QWidget *>(screen)->grab();
    QPainter painter(&picture);
    for (QWidget *window : windowsOver(screen))
        drawWindow(painter, screen->geometry(), window);
    painter.end();
    const QString file =
        QString::number(++m_number).rightJustified(2, u'0') + u'-' + name + QLatin1String(".png");
    return picture.save(QDir(m_folder).filePath(file)) ? file : QString();
}
