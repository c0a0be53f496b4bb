// The frame of a child window in the main window. Opens at the size its content wants, never
// larger than the main window, and remembers the size a person gave it by the kind of window.
#pragma once

#include <QMdiSubWindow>
#include <QPointer>

class ChildWindow : public QMdiSubWindow
{
    Q_OBJECT
public:
    explicit ChildWindow(QWidget *form);

    // Call once the frame is in its area and shown. `behind` is the window that was in use, null
    // when there was none; this one stands a title bar below it.
    void openAtItsSize(const QMdiSubWindow *behind);
    // Gives the keyboard to the control that the form chose before it was framed, else to its
    // first one.
    void focusForm();
    // The size it has now was not chosen by a person, and is not to be remembered.
    void noteSizeGiven() { m_sizeGiven = size(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void rememberSize() const;
    QString sizeName() const;

    QPointer<QWidget> m_firstFocus;
    QSize m_sizeGiven;
};
