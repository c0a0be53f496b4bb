// Banner that shows and holds a form's mode: "read-only" on pale yellow, "edit-data" on white.
#pragma once

#include <QLabel>

class EditModeCtl : public QLabel
{
    Q_OBJECT
public:
    explicit EditModeCtl(QWidget *parent = nullptr); // starts read-only

    void EditMode();
    void ViewMode();
    bool InEditMode() const { return m_editMode; }

protected:
    void changeEvent(QEvent *event) override;

private:
    void setMode(bool editMode);
    void applyColours();

    bool m_editMode = false;
    bool m_colouring = false; // our own palette change comes back as an event
};
