// Helpers that take a control, and the read-only state of a form.
#include "common/ui/Controls.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopeGuard>

namespace
{

template <class Control>
Control *tagged(QWidget *form, const QString &tag)
{
    auto *control = new Control(form);
    control->setProperty("tag", tag);
    return control;
}

qreal contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](qreal part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const qreal a = luminance(one) + 0.05;
    const qreal b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QColor back(const QWidget *control)
{
    return control->palette().color(QPalette::Base);
}

TEST(ComboTest, AnItemGoesByItsNumber)
{
    QComboBox combo;
    EXPECT_EQ(cboGetItemID(&combo), -1);
    combo.addItem(QStringLiteral("without a number"));
    cboAddItem(&combo, QStringLiteral("Gold"), 1000);
    cboAddItem(&combo, QStringLiteral("Silver"), 1001);
    EXPECT_EQ(cboGetItemID(&combo), -1);
    cboSelectAtID(&combo, 1001);
    EXPECT_EQ(cboGetItemID(&combo), 1001);
    cboSelectAtID(&combo, 77);
    cboSelectAtIndex(&combo, 9);
    EXPECT_EQ(cboGetItemID(&combo), 1001);
    cboSelectAtIndex(&combo, 1);
    EXPECT_EQ(cboGetItemID(&combo), 1000);
    combo.setEditable(true);
    combo.setEditText(QStringLiteral("Golden"));
    EXPECT_EQ(cboGetItemID(&combo), -1);
}

TEST(ListBoxTest, ItemsGoByTheirNumbers)
{
    ScriptedPrompts person;
    QListWidget chosen;
    QListWidget offered;
    QComboBox combo;
    const char *names[] = {"One", "Two", "Three"};
    for (int at = 0; at < 3; ++at) {
        lbAddItem(&offered, QLatin1String(names[at]), 1001 + at);
        cboAddItem(&combo, QLatin1String(names[at]), 1001 + at);
    }
    lbAddItem(&chosen, QStringLiteral("Two"), 1002);
    EXPECT_EQ(lbGetPosForID(&offered, 1003), 2);
    EXPECT_EQ(lbGetPosForID(&offered, 7), -1);
    EXPECT_EQ(lbItemID(&offered, 3), -1);
    LB2LBRemoveItems(&chosen, &offered);
    LB2LBRemoveItems(&chosen, &combo);
    EXPECT_EQ(offered.count() + combo.count(), 4);
    EXPECT_EQ(lbGetPosForID(&offered, 1002) + combo.findData(1002), -2);

    offered.setCurrentRow(0);
    LBSwapItems(&offered, 0, 1);
    EXPECT_EQ(lbItemID(&offered, 0), 1003);
    EXPECT_EQ(offered.item(1)->text(), QStringLiteral("One"));
    EXPECT_EQ(offered.currentRow(), 1); // the item that was current
    LBSwapItems(&offered, 1, 2);
    LBSwapItems(&offered, -1, 0);
    EXPECT_EQ(offered.currentRow(), 1);
    LBRemoveCurSelected(&offered);
    EXPECT_EQ(lbItemID(&offered, 0), 1003);
    offered.setCurrentRow(-1);
    person.expect(QStringLiteral("Please select a listbox item first!"));
    LBRemoveCurSelected(&offered);
    EXPECT_EQ(offered.count(), 1);
}

TEST(ControlsTest, TextReplacesTheSelectionAndStaysUndoable)
{
    QPlainTextEdit box;
    box.setPlainText(QStringLiteral("one two"));
    box.moveCursor(QTextCursor::End);
    box.moveCursor(QTextCursor::PreviousWord, QTextCursor::KeepAnchor);
    TxtCtlInsertStr(&box, QStringLiteral("2\n"));
    EXPECT_EQ(box.toPlainText(), QStringLiteral("one 2\n"));
    box.undo();
    EXPECT_EQ(box.toPlainText(), QStringLiteral("one two"));
}

TEST(ControlsTest, OnlyCtrlEIsTheEditKeyAndOnlyACheckedBoxIsTrue)
{
    EXPECT_TRUE(KeyPressedCtrlE(69, Qt::ControlModifier));
    EXPECT_TRUE(KeyPressedCtrlE(69, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_FALSE(KeyPressedCtrlE(69, Qt::NoModifier));
    EXPECT_FALSE(KeyPressedCtrlE(68, Qt::ControlModifier));
    QCheckBox box;
    box.setTristate(true);
    box.setCheckState(Qt::PartiallyChecked);
    EXPECT_FALSE(CK2TrueFalse(&box));
    box.setCheckState(Qt::Checked);
    EXPECT_TRUE(CK2TrueFalse(&box));
}

TEST(LockControlsTest, LocksWhatCarriesTheTagByItsKind)
{
    QWidget form;
    auto *page = new QWidget(&form);
    auto *line = tagged<QLineEdit>(page, QStringLiteral("E")); // on a page of the form
    auto *memo = tagged<QPlainTextEdit>(&form, QStringLiteral("E"));
    auto *combo = tagged<QComboBox>(&form, QStringLiteral("E"));
    auto *list = tagged<QListWidget>(&form, QStringLiteral("E"));
    auto *options = tagged<QGroupBox>(&form, QStringLiteral("E"));
    auto *button = tagged<QPushButton>(&form, QStringLiteral("E"));
    auto *other = tagged<QLineEdit>(&form, QStringLiteral("custno"));

    LockControls(&form, true, QStringLiteral("E"));
    EXPECT_TRUE(line->isReadOnly() && line->isEnabled()); // readable, can be selected
    EXPECT_TRUE(memo->isReadOnly() && memo->isEnabled());
    EXPECT_FALSE(combo->isEnabled() || list->isEnabled() || options->isEnabled());
    EXPECT_FALSE(button->isEnabled());
    EXPECT_FALSE(other->isReadOnly());
    for (const QWidget *field : {static_cast<QWidget *>(line), static_cast<QWidget *>(memo),
                                 static_cast<QWidget *>(combo), static_cast<QWidget *>(list)})
        EXPECT_EQ(back(field), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_NE(back(other), QColor(0xFF, 0xFF, 0xC0));
    // A locked combo box shows its text as clearly as the text boxes beside it.
    EXPECT_EQ(combo->palette().color(QPalette::Disabled, QPalette::ButtonText),
              line->palette().color(QPalette::Active, QPalette::Text));
    EXPECT_EQ(list->palette().color(QPalette::Disabled, QPalette::Text),
              line->palette().color(QPalette::Active, QPalette::Text));
    EXPECT_GT(contrast(form.palette().color(QPalette::Window),
                       options->palette().color(QPalette::Disabled, QPalette::WindowText)),
              4.5);

    LockControls(&form, false, QStringLiteral("E"));
    EXPECT_FALSE(line->isReadOnly() || memo->isReadOnly());
    EXPECT_TRUE(combo->isEnabled() && list->isEnabled() && options->isEnabled());
    EXPECT_TRUE(button->isEnabled());
    EXPECT_EQ(back(line), QColor(Qt::white));
}

TEST(LockControlsTest, ColoursKeepTheirMeaningOnADarkPalette)
{
    const QPalette light = QApplication::palette();
    const auto restore = qScopeGuard([light] { QApplication::setPalette(light); });
    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    QApplication::setPalette(dark);

    QWidget form;
    auto *line = tagged<QLineEdit>(&form, QStringLiteral("E"));
    for (const bool locked : {true, false}) {
        LockControls(&form, locked, QStringLiteral("E"));
        EXPECT_LT(back(line).lightness(), 128);
        EXPECT_GT(contrast(back(line), line->palette().color(QPalette::Text)), 7);
    }
    EXPECT_NE(readOnlyColour(line), editableColour(line));
}

} // namespace
