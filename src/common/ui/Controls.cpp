#include "common/ui/Controls.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextEdit>

#include <algorithm>

namespace
{

QColor blend(const QColor &base, const QColor &tint, qreal share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return QColor(mix(base.red(), tint.red()), mix(base.green(), tint.green()),
                  mix(base.blue(), tint.blue()));
}

QColor baseColour(const QWidget *control)
{
    return QApplication::palette(control).color(QPalette::Active, QPalette::Base);
}

bool isDark(const QColor &base)
{
    return base.lightness() < 128;
}

// Styles pale the colour of a button; this one comes out about as strong as the field beside it.
QColor buttonTint(const QColor &back)
{
    return QColor::fromHsv(std::max(back.hsvHue(), 0), std::min(255, back.hsvSaturation() * 8 / 5),
                           back.value());
}

// A pick-only box is drawn as a button.
QPalette tinted(const QWidget *field, const QColor &back)
{
    const QColor text = QApplication::palette(field).color(QPalette::Active, QPalette::Text);
    QPalette palette;
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, buttonTint(back));
    palette.setColor(QPalette::ButtonText, text);
    return palette;
}

QPalette untinted(const QWidget *field)
{
    QPalette palette;
    palette.setColor(QPalette::Base, editableColour(field));
    palette.setColor(QPalette::Text,
                     QApplication::palette(field).color(QPalette::Active, QPalette::Text));
    return palette;
}

// A disabled box greys its text; what a record holds must stay readable while it is locked.
void paintField(QWidget *field, bool locked)
{
    field->setPalette(locked ? tinted(field, readOnlyColour(field)) : untinted(field));
}

// The same for a frame of options, which still looks locked.
void paintOptions(QWidget *frame, bool locked)
{
    const QPalette standard = QApplication::palette(frame);
    QPalette palette;
    if (locked) {
        const QColor text = blend(standard.color(QPalette::Active, QPalette::Window),
                                  standard.color(QPalette::Active, QPalette::WindowText), 0.7);
        palette.setColor(QPalette::Disabled, QPalette::WindowText, text);
        palette.setColor(QPalette::Disabled, QPalette::Text, text);
    }
    frame->setPalette(palette);
}

template <class Box>
bool lockText(QWidget *control, bool locked)
{
    auto *box = qobject_cast<Box *>(control);
    if (box == nullptr)
        return false;
    box->setReadOnly(locked);
    paintField(box, locked);
    return true;
}

void lockControl(QWidget *control, bool locked)
{
    if (auto *own = dynamic_cast<EnabledControl *>(control)) {
        own->SetEnabled(!locked);
        return;
    }
    if (lockText<QLineEdit>(control, locked) || lockText<QPlainTextEdit>(control, locked) ||
        lockText<QTextEdit>(control, locked) || lockText<QAbstractSpinBox>(control, locked))
        return;
    if (qobject_cast<QComboBox *>(control) != nullptr ||
        qobject_cast<QListWidget *>(control) != nullptr)
        paintField(control, locked);
    if (qobject_cast<QGroupBox *>(control) != nullptr)
        paintOptions(control, locked);
    control->setEnabled(!locked);
}

} // namespace

qint32 cboGetItemID(const QComboBox *combo)
{
    const int current = combo->currentIndex();
    // Text typed over an item of a free-text box is no longer that item.
    if (current < 0 || (combo->isEditable() && combo->currentText() != combo->itemText(current)))
        return -1;
    bool ok = false;
    const qint32 id = combo->itemData(current).toInt(&ok);
    return ok ? id : -1;
}

void cboSelectAtID(QComboBox *combo, qint32 id)
{
    const int index = combo->findData(id);
    if (index >= 0)
        combo->setCurrentIndex(index);
}

void cboSelectAtIndex(QComboBox *combo, int index)
{
    if (index >= 0 && index < combo->count())
        combo->setCurrentIndex(index);
}

void cboAddItem(QComboBox *combo, const QString &text, qint32 id)
{
    combo->addItem(text, id);
}

void TxtCtlInsertStr(QPlainTextEdit *box, const QString &text)
{
    box->insertPlainText(text);
    box->ensureCursorVisible();
}

void CtlSetFocus(QWidget *control)
{
    if (control->isVisible())
        control->setFocus(Qt::OtherFocusReason);
}

bool CK2TrueFalse(const QAbstractButton *box)
{
    const auto *check = qobject_cast<const QCheckBox *>(box);
    return check != nullptr ? check->checkState() == Qt::Checked : box->isChecked();
}

QString controlTag(const QWidget *control)
{
    return control->property("tag").toString();
}

void LockControls(QWidget *form, bool locked, const QString &tag)
{
    const QList<QWidget *> controls = form->findChildren<QWidget *>();
    for (QWidget *control : controls)
        if (controlTag(control) == tag)
            lockControl(control, locked);
}

QColor readOnlyColour(const QWidget *control)
{
    const QColor yellow(0xFF, 0xFF, 0xC0);
    const QColor base = baseColour(control);
    return isDark(base) ? blend(base, yellow, 0.16) : yellow;
}

QColor editableColour(const QWidget *control)
{
    const QColor base = baseColour(control);
    return isDark(base) ? base : QColor(Qt::white);
}

QColor warningColour(const QWidget *control)
{
    const QColor red(0xFF, 0xC0, 0xC0);
    const QColor base = baseColour(control);
    return isDark(base) ? blend(base, QColor(0xFF, 0x40, 0x40), 0.35) : red;
}

void markChoice(QComboBox *combo, bool unusual)
{
    combo->setPalette(unusual ? tinted(combo, warningColour(combo)) : untinted(combo));
}

void letButtonsShrink(const QWidget *form)
{
    for (QPushButton *button : form->findChildren<QPushButton *>()) {
        const QFontMetrics metrics = button->fontMetrics();
        button->setMinimumWidth(metrics.size(Qt::TextShowMnemonic, button->text()).width() +
                                2 * metrics.averageCharWidth());
    }
}

void switchOff(QWidget *window)
{
    const bool atWork = window->isAncestorOf(window->window()->focusWidget());
    window->setEnabled(false);
    if (auto *frame = qobject_cast<QMdiSubWindow *>(window->parentWidget()); frame && atWork)
        frame->setFocus();
}

void shortcutFor(QWidget *form, const QKeySequence &key, QAbstractButton *button)
{
    auto *shortcut = new QShortcut(key, form);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
}

bool KeyPressedCtrlE(int key, Qt::KeyboardModifiers modifiers)
{
    return key == Qt::Key_E && modifiers.testFlag(Qt::ControlModifier);
}
