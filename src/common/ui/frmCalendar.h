// Lets a person pick a date. Modal.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmCalendar;
}

class frmCalendar : public QDialog
{
    Q_OBJECT
public:
    explicit frmCalendar(QWidget *parent = nullptr);
    ~frmCalendar() override;

    // Opens at the date, at today when the text is none; the text of the button that takes it.
    void Init(const QString &date, const QString &okText);
    // In the short form; empty unless the dialog was accepted.
    const QString &pickedDate() const { return m_picked; }

    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void goToToday();
    void showLongDate();

    std::unique_ptr<Ui::frmCalendar> ui;
    QString m_picked;
    bool m_keyPressed = false; // here, and not still held down from what opened the dialog
};
