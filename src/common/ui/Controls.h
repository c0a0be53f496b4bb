// Helpers of the screens that take a control: combo boxes with an item number a row, text boxes,
// focus, and the read-only state of a form.
#pragma once

#include "common/ui/FormWindow.h"

#include <QString>
#include <QWidget>

#include <QColor>

class QAbstractButton;
class QComboBox;
class QKeySequence;
class QListWidget;
class QPlainTextEdit;

qint32 cboGetItemID(const QComboBox *combo); // -1 when nothing is selected
void cboSelectAtID(QComboBox *combo, qint32 id);
void cboSelectAtIndex(QComboBox *combo, int index);
void cboAddItem(QComboBox *combo, const QString &text, qint32 id);

// The same for list boxes (ListBoxes.cpp).
void lbAddItem(QListWidget *list, const QString &text, qint32 id);
qint32 lbItemID(const QListWidget *list, int row);     // -1 when there is none
int lbGetPosForID(const QListWidget *list, qint32 id); // -1 when there is none
// Takes out of the second list what the first one has, by item number.
void LB2LBRemoveItems(const QListWidget *shown, QListWidget *from);
void LB2LBRemoveItems(const QListWidget *shown, QComboBox *from);
void LBRemoveCurSelected(QListWidget *list); // a message when nothing is selected
// Exchanges two rows that the list has; the selection follows.
void LBSwapItems(QListWidget *list, int one, int other);

// Replaces the selection by the text.
void TxtCtlInsertStr(QPlainTextEdit *box, const QString &text);
void CtlSetFocus(QWidget *control); // when visible
bool CK2TrueFalse(const QAbstractButton *box);

// A control that is never disabled as a whole, since it can be looked at in read-only mode too.
// LockControls sets its Enabled instead: whether its contents may be changed.
class EnabledControl
{
public:
    virtual ~EnabledControl() = default;
    virtual bool Enabled() const = 0;
    virtual void SetEnabled(bool enabled) = 0;
};

// The tag of a control: dynamic property "tag" set in the Designer file.
QString controlTag(const QWidget *control);
// Each control of the form with that tag: text, combo and list boxes get the read-only or the
// editable colour and are locked (text) or disabled; other kinds are only enabled or disabled.
void LockControls(QWidget *form, bool locked, const QString &tag);
// Pale yellow and white on a light palette, blends of the same meaning on a dark one.
QColor readOnlyColour(const QWidget *control);
QColor editableColour(const QWidget *control);
// Light red, and a dark one of the same meaning.
QColor warningColour(const QWidget *control);
// A choice that differs from the usual one stands out in that colour.
void markChoice(QComboBox *combo, bool unusual);

// Its frame in the main window takes the focus meanwhile: without any the toolkit would raise
// another window.
void switchOff(QWidget *window);

// Lets the buttons become as narrow as their texts where room is short.
void letButtonsShrink(const QWidget *form);

// The key clicks the button from anywhere in the form.
void shortcutFor(QWidget *form, const QKeySequence &key, QAbstractButton *button);
bool KeyPressedCtrlE(int key, Qt::KeyboardModifiers modifiers);
