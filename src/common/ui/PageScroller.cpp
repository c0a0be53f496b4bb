#include "common/ui/PageScroller.h"

#include <QEvent>

namespace
{

constexpr int kLeastLines = 5;
constexpr int kLeastCharacters = 40;

} // namespace

PageScroller::PageScroller(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // Tab goes through the fields and brings each into sight
}

QSize PageScroller::sizeHint() const
{
    return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
}

QSize PageScroller::minimumSizeHint() const
{
    return {kLeastCharacters * fontMetrics().averageCharWidth(),
            kLeastLines * fontMetrics().lineSpacing()};
}

// The tab control's own background shows through.
bool PageScroller::event(QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        viewport()->setAutoFillBackground(false);
        if (widget() != nullptr)
            widget()->setAutoFillBackground(false);
    }
    return QScrollArea::event(event);
}
