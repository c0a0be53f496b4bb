// One field of a record and the control that shows it. Text goes out as the control holds it;
// a lookup field is the chosen item's id, -1 for none.
#pragma once

#include <QString>
#include <QVariant>

#include <functional>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QWidget;

struct FieldBinding {
    QString field;
    QWidget *control = nullptr;
    // From its lookup list, false when that could not be read; empty when it has none.
    std::function<bool()> refill;
    std::function<void(const QVariant &)> show;
    std::function<QVariant()> value;
};

namespace binding
{

// The most bytes of a memo that can be read back.
inline constexpr qsizetype kMemoLimit = 32767;

// `length` is the field's width in the table, the most that can be typed; 0 sets no limit.
FieldBinding text(const QString &field, QLineEdit *box, int length);
// The same without blanks around it.
FieldBinding trimmedText(const QString &field, QLineEdit *box, int length);
// A date in its short form; what is typed is a date in any form, or none.
FieldBinding date(const QString &field, QLineEdit *box);
// A text that may be picked from the list of this type; below 1 the combo keeps its own items.
FieldBinding comboText(const QString &field, QComboBox *combo, int length, int listType);
// An item of the list of this type, with an empty one to choose none.
FieldBinding lookup(const QString &field, QComboBox *combo, int listType);
// A user, with an empty item to choose nobody.
FieldBinding users(const QString &field, QComboBox *combo);
// A memo. Typing or pasting stops where the stored text would pass kMemoLimit.
FieldBinding memo(const QString &field, QPlainTextEdit *box);

} // namespace binding

// Date, time and the user's name at the caret of a memo.
void insertStamp(QPlainTextEdit *memo);
