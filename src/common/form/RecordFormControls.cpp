// Controls of a record screen: field bindings, buttons and keys.
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/form/RecordForm.h"
#include "common/ui/Controls.h"
#include "common/ui/Switchboard.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>

void RecordForm::bindField(FieldBinding binding)
{
    m_bindings.push_back(std::move(binding));
}

// Characters and bytes are the same number: one byte a character in the tables.
int RecordForm::fieldLength(const QString &field) const
{
    const std::string wanted = field.toUpper().toStdString();
    for (const auto &known : schema::table(m_spec.table).def.fields)
        if (known.name == wanted)
            return known.length;
    return 0;
}

void RecordForm::bind(const QString &field, QLineEdit *box)
{
    bindField(binding::text(field, box, fieldLength(field)));
}

void RecordForm::bindTrimmed(const QString &field, QLineEdit *box)
{
    bindField(binding::trimmedText(field, box, fieldLength(field)));
}

void RecordForm::bind(const QString &field, QPlainTextEdit *memo)
{
    bindField(binding::memo(field, memo));
}

void RecordForm::bindDate(const QString &field, QLineEdit *box)
{
    bindField(binding::date(field, box));
}

void RecordForm::bindLookup(const QString &field, QComboBox *combo, int listType)
{
    bindField(binding::lookup(field, combo, listType));
}

void RecordForm::bindText(const QString &field, QComboBox *combo, int listType)
{
    bindField(binding::comboText(field, combo, fieldLength(field), listType));
}

void RecordForm::bindUsers(const QString &field, QComboBox *combo)
{
    bindField(binding::users(field, combo));
}

void RecordForm::bindCustom(const QString &field, QWidget *control,
                            std::function<void(const QVariant &)> show,
                            std::function<QVariant()> value)
{
    bindField({field, control, {}, std::move(show), std::move(value)});
}

void RecordForm::bindListEditor(QAbstractButton *button, QComboBox *combo, int listType)
{
    connect(button, &QAbstractButton::clicked, this,
            [this, combo, listType] { editList(combo, listType); });
}

// A list that cannot be read again must not cost the record what was chosen from it.
void RecordForm::editList(QComboBox *combo, int listType)
{
    guarded(context("editList").constData(), [&] {
        const auto binding =
            std::find_if(m_bindings.begin(), m_bindings.end(),
                         [combo](const FieldBinding &bound) { return bound.control == combo; });
        if (binding == m_bindings.end())
            return;
        const QVariant chosen = binding->value();
        const QString text = combo->currentText();
        switchboard().EditCategory(listType);
        const bool whole = binding->refill();
        binding->show(chosen);
        if (!whole && !combo->isEditable() && binding->value() != chosen) {
            cboAddItem(combo, text, chosen.toInt());
            binding->show(chosen);
        }
        if (combo->isEnabled())
            combo->setFocus();
    });
}

void RecordForm::showField(const QString &field, const QVariant &value)
{
    for (const FieldBinding &bound : m_bindings)
        if (bound.field == field)
            bound.show(value);
}

void RecordForm::connectControls()
{
    const Controls &c = m_controls;
    // The platform decides the order of these three.
    c.buttonBox->addButton(c.OKButton, QDialogButtonBox::AcceptRole);
    c.buttonBox->addButton(c.CancelButton, QDialogButtonBox::RejectRole);
    c.buttonBox->addButton(c.cmdApply, QDialogButtonBox::ApplyRole);
    c.OKButton->setDefault(true);
    letButtonsShrink(this);

    connect(c.OKButton, &QPushButton::clicked, this, &RecordForm::saveAndClose);
    connect(c.cmdApply, &QPushButton::clicked, this, &RecordForm::saveAndStay);
    shortcutFor(this, QKeySequence::Save, c.cmdApply);
    connect(c.CancelButton, &QPushButton::clicked, this, &RecordForm::cancel);
    connect(c.cmdRefresh, &QPushButton::clicked, this, &RecordForm::LoadData);
    if (c.cmdDelete != nullptr)
        connect(c.cmdDelete, &QPushButton::clicked, this, &RecordForm::deleteRecord);
    connect(c.lblEdit, &QPushButton::clicked, this, &RecordForm::DoEditModeBtn);

    // Keys of the whole form are seen at the control that has the focus, before text boxes take
    // them for keys of their own (Ctrl+E moves the caret).
    const auto controls = findChildren<QWidget *>();
    for (QWidget *control : controls)
        control->installEventFilter(this);
}

// A cell that is still being typed into counts as typed, whichever key or button ends the edit.
void RecordForm::finishTyping()
{
    QWidget *focus = QApplication::focusWidget();
    for (QWidget *at = focus; at != nullptr && at != this; at = at->parentWidget())
        if (auto *view = qobject_cast<QAbstractItemView *>(at); view != nullptr && view != focus) {
            view->setFocus();
            return;
        }
}

void RecordForm::saveAndClose()
{
    finishTyping();
    if (!SaveData())
        return;
    m_controls.EM->ViewMode();
    close();
}

void RecordForm::saveAndStay()
{
    finishTyping();
    if (!SaveData())
        return;
    m_controls.EM->ViewMode();
    afterApply();
    UpdateLastEditCtl();
    const QWidget *focus = QApplication::focusWidget();
    SetUI();
    if (focus == nullptr || !focus->isEnabled()) // or the keys would go to no window
        CtlSetFocus(m_controls.tabs);
}

void RecordForm::cancel()
{
    if (inEditMode() && !DiscardChanges())
        return;
    m_controls.EM->ViewMode();
    close();
}

void RecordForm::deleteRecord()
{
    guarded(context("cmdDelete_Click").constData(), [this] {
        const QString refusal = deleteRefusal();
        if (!refusal.isEmpty()) {
            clsSystem::ShowMsg(refusal, prompts::Kind::Warning);
            return;
        }
        const auto answer =
            prompts::ask(deleteQuestion(), prompts::Answer::Cancel, tr("DELETE Confirmation"));
        if (answer != prompts::Answer::Yes || !removeRecord())
            return;
        m_controls.EM->ViewMode();
        close();
    });
}

bool RecordForm::removeRecord()
{
    return gDB.DeleteRecord(m_rowid, tablePath());
}

// Field colours are worked out from the palette, so they follow a change of it.
void RecordForm::changeEvent(QEvent *event)
{
    FormWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_controls.EM != nullptr)
        SetUI();
}

bool RecordForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress)
        return handleKey(static_cast<QKeyEvent *>(event));
    return FormWindow::eventFilter(watched, event);
}

void RecordForm::keyPressEvent(QKeyEvent *event)
{
    if (!handleKey(event))
        FormWindow::keyPressEvent(event);
}

bool RecordForm::handleKey(const QKeyEvent *event)
{
    if (KeyPressedCtrlE(event->key(), event->modifiers())) {
        if (!m_controls.lblEdit->isHidden() && !inEditMode())
            DoEditModeBtn();
        return true;
    }
    if (event->modifiers() != Qt::NoModifier || event->key() != Qt::Key_F5)
        return false;
    m_controls.cmdRefresh->click(); // does nothing while it is disabled
    return true;
}
