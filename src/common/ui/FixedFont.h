// The fixed-pitch font of texts laid out in columns: messages and previews.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QWidget;

// "Courier New" where it is installed, else the nearest the system has.
QFont fixedPitchFont();

// What the text wants in that font, in pixels, between the given numbers of columns and lines,
// and never beyond four fifths of the widget's screen.
QSize fixedPitchSize(const QWidget *widget, const QString &text, QSize least, QSize most);
