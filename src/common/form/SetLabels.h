// The captions of a screen's labels follow the names that the database gives to its fields.
#pragma once

#include <QString>

class QLabel;
class QWidget;

// Each label of the form whose tag is a field name takes that field's current name and a colon. A
// very long name is shortened, and whole in the label's tool tip.
void SetLabels(QWidget *form, const QString &tableFile);

// The caption as a person reads it: the whole name, without the marks of an access key.
QString labelCaption(const QLabel *label);
