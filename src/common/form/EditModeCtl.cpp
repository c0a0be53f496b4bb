#include "common/form/EditModeCtl.h"

#include "common/ui/Controls.h"

#include <QEvent>

EditModeCtl::EditModeCtl(QWidget *parent) : QLabel(parent)
{
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setMargin(fontMetrics().height() / 4);
    // Wide enough for both texts, so that the row does not move when the mode changes.
    const int widest = qMax(fontMetrics().horizontalAdvance(tr("edit-data")),
                            fontMetrics().horizontalAdvance(tr("read-only")));
    setMinimumWidth(widest + 2 * fontMetrics().height());
    ViewMode();
}

void EditModeCtl::EditMode()
{
    setMode(true);
}

void EditModeCtl::ViewMode()
{
    setMode(false);
}

void EditModeCtl::setMode(bool editMode)
{
    m_editMode = editMode;
    setText(editMode ? tr("edit-data") : tr("read-only"));
    applyColours();
}

void EditModeCtl::applyColours()
{
    if (m_colouring)
        return;
    m_colouring = true;
    const QColor back = m_editMode ? editableColour(this) : readOnlyColour(this);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, back);
    colours.setColor(QPalette::WindowText, back.lightness() > 127 ? Qt::black : Qt::white);
    setPalette(colours);
    m_colouring = false;
}

void EditModeCtl::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        applyColours();
}
