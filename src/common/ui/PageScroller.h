// A page of a tab control whose window may be made smaller than the page: it scrolls then. As long
// as there is room it looks like any other page.
#pragma once

#include <QScrollArea>

class PageScroller : public QScrollArea
{
    Q_OBJECT
public:
    explicit PageScroller(QWidget *parent = nullptr);

    // The whole page.
    QSize sizeHint() const override;
    // A few lines of it.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
};
