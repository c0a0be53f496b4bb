// A panel of the status bar: one line of text that gives way in the middle when it is too long.
#pragma once

#include <QFrame>

class StatusPanel : public QFrame
{
    Q_OBJECT
public:
    explicit StatusPanel(QWidget *parent = nullptr);

    const QString &text() const { return m_text; }
    void setText(const QString &text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};
