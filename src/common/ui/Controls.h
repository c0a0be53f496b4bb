// Helpers of the screens that take a control: combo boxes with an item number a row, text boxes,
// focus, and the read-only state of a form.
#pragma once

#include "common/ui/FormWindow.h"

#include <QString>
#include <QWidget>

#include <QColor>

class QAbstractButton;
class QComboBox;
class QPlainTextEdit;

qint32 cboGetItemID(const QComboBox *combo); // -1 when nothing is selected
void cboSelectAtID(QComboBox *combo, qint32 id);
void cboSelectAtIndex(QComboBox *combo, int index);
void cboAddItem(QComboBox *combo, const QString &text, qint32 id);

// Replaces the selection by the text.
void TxtCtlInsertStr(QPlainTextEdit *box, const QString &text);
void CtlSetFocus(QWidget *control); // when visible
bool CK2TrueFalse(const QAbstractButton *box);

// The tag of a control: dynamic property "tag" set in the Designer file.
QString controlTag(const QWidget *control);
// Each control of the form with that tag: text and combo boxes get the read-only or the editable
// colour and are locked (text) or disabled; other kinds are only enabled or disabled.
void LockControls(QWidget *form, bool locked, const QString &tag);
// Pale yellow and white on a light palette, blends of the same meaning on a dark one.
QColor readOnlyColour(const QWidget *control);
QColor editableColour(const QWidget *control);

bool KeyPressedCtrlE(int key, Qt::KeyboardModifiers modifiers);
