#include "common/form/FieldBinding.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"
#include "common/form/ListSinks.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>

namespace
{

bool fillFromList(QComboBox *combo, int listType, bool withBlank)
{
    ComboSink sink(combo);
    return gDB.LoadCbo(sink, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                       QStringLiteral("type"), listType, true, withBlank);
}

// The lines of the box joined by line feeds. Not toPlainText(), which turns no-break spaces into
// blanks.
QString memoLines(const QPlainTextEdit *box)
{
    QString text = box->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return text;
}

// Lines are stored with CR and LF, as the other programs that read these files expect, unless
// only the shorter form fits.
QString storedMemo(QString text)
{
    const qsizetype length = toAnsi(text).size() + text.count(QLatin1Char('\n'));
    if (length <= binding::kMemoLimit)
        text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return text;
}

QString shownMemo(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

// Takes what was just put in back out, from the caret to the left, as far as it is too much.
void holdMemoLimit(QPlainTextEdit *box)
{
    const qsizetype excess = toAnsi(memoLines(box)).size() - binding::kMemoLimit;
    if (excess <= 0)
        return;
    QTextCursor cursor = box->textCursor();
    if (cursor.position() < excess)
        cursor.movePosition(QTextCursor::End);
    cursor.setPosition(cursor.position() - int(excess), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    box->setTextCursor(cursor);
}

} // namespace

namespace binding
{

FieldBinding text(const QString &field, QLineEdit *box, int length)
{
    if (length > 0)
        box->setMaxLength(length);
    return {field,
            box,
            {},
            [box](const QVariant &value) {
                box->setText(value.toString());
                box->setCursorPosition(0);
            },
            [box] { return QVariant(box->text()); }};
}

FieldBinding trimmedText(const QString &field, QLineEdit *box, int length)
{
    FieldBinding made = text(field, box, length);
    made.value = [box] { return QVariant(clsSystem::Trim(box->text())); };
    return made;
}

FieldBinding date(const QString &field, QLineEdit *box)
{
    FieldBinding made = text(field, box, 0);
    made.show = [show = made.show](const QVariant &value) {
        show(clsSystem::DBDateToDislayDate(value.toString()));
    };
    return made;
}

FieldBinding comboText(const QString &field, QComboBox *combo, int length, int listType)
{
    combo->setCompleter(nullptr); // it would change the case of what was typed
    combo->setCurrentIndex(-1);   // nothing is chosen until somebody chooses
    if (length > 0)
        combo->lineEdit()->setMaxLength(length);
    FieldBinding made{field,
                      combo,
                      {},
                      [combo](const QVariant &value) {
                          combo->setEditText(value.toString());
                          combo->lineEdit()->setCursorPosition(0);
                      },
                      [combo] { return QVariant(combo->currentText()); }};
    if (listType > 0)
        made.refill = [combo, listType] { return fillFromList(combo, listType, false); };
    return made;
}

FieldBinding lookup(const QString &field, QComboBox *combo, int listType)
{
    return {field, combo, [combo, listType] { return fillFromList(combo, listType, true); },
            [combo](const QVariant &value) { ComboSink(combo).selectId(value.toInt()); },
            [combo] { return QVariant(ComboSink(combo).currentId()); }};
}

FieldBinding users(const QString &field, QComboBox *combo)
{
    FieldBinding made = lookup(field, combo, 0);
    made.refill = [combo] {
        ComboSink sink(combo);
        sink.clear();
        sink.addItem(QString(), -1);
        return gDB.LoadCbo_Users(sink);
    };
    return made;
}

FieldBinding memo(const QString &field, QPlainTextEdit *box)
{
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [box] { holdMemoLimit(box); });
    return {field,
            box,
            {},
            [box](const QVariant &value) { box->setPlainText(shownMemo(value.toString())); },
            [box] { return QVariant(storedMemo(memoLines(box))); }};
}

} // namespace binding

void insertStamp(QPlainTextEdit *memo)
{
    TxtCtlInsertStr(memo, clsSystem::CurrDateTimeShort() + u" by " + gDB.LoginName());
    memo->setFocus();
}
