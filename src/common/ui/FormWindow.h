// Base of every window of ours that can be open beside others: its Tag text, its help topic, and
// the registry of open windows, which works on the Tag alone.
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class FormWindow : public QWidget
{
    Q_OBJECT
public:
    explicit FormWindow(QWidget *parent = nullptr);
    ~FormWindow() override;

    const QString &tagText() const { return m_tag; }
    void setTagText(const QString &tag) { m_tag = tag; }
    int helpTopic() const { return m_helpTopic; }
    void setHelpTopic(int topic) { m_helpTopic = topic; }
    // "frmCustomer": the name UnloadForm goes by.
    QString formName() const;

protected:
    bool event(QEvent *event) override;
    // Esc presses CancelButton. Enter presses the button that has the focus, else the default one.
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_tag;
    int m_helpTopic = 0;
};

// All open windows of ours, oldest first.
const QList<FormWindow *> &openForms();
bool IsFormLoaded(const QString &tag);
FormWindow *GetFormWithTag(const QString &tag); // null when none
// Restores the window when it is minimised, in the main window or alone, and gives it the focus.
void BringFormToTop(const QString &tag);
// Closes every open window but those with the given tag; each may refuse, and the first refusal
// ends the closing. While a progress window is open none is closed. False when one stays.
bool UnloadAll(const QString &exceptTag);
// The same for the windows of one kind.
bool UnloadForm(const QString &formName);
