#include "shell/StatusPanel.h"

#include <QPainter>

StatusPanel::StatusPanel(QWidget *parent) : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusPanel::setText(const QString &text)
{
    m_text = text;
    setToolTip(text.trimmed());
    setAccessibleName(text.trimmed());
    updateGeometry();
    update();
}

QSize StatusPanel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(m_text) + metrics.averageCharWidth() * 2,
            metrics.height() + metrics.leading() + 4};
}

QSize StatusPanel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 8, sizeHint().height()};
}

void StatusPanel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect room = contentsRect().adjusted(fontMetrics().averageCharWidth() / 2, 0,
                                               -fontMetrics().averageCharWidth() / 2, 0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_text, Qt::ElideMiddle, room.width()));
}
