// The helpers that stand in for a person at modal windows, without which a fault would hang a test
// or pass unseen.
#include "support/DialogDriver.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace
{

TEST(ModalWindowsTest, AForgottenOneIsRejectedAndFailsTheTest)
{
    QDialog dialog;
    new QLabel(QStringLiteral("Are you sure?"), &dialog);
    int result = QDialog::Accepted;
    EXPECT_NONFATAL_FAILURE(result = dialog.exec(), "Are you sure?");
    EXPECT_EQ(result, QDialog::Rejected);
}

TEST(ModalWindowsTest, OneThatNeverComesOrLacksTheButtonFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(DialogDriver driver([](QWidget *) {}), "never came");
    QDialog dialog;
    EXPECT_NONFATAL_FAILURE(clickButton(&dialog, QStringLiteral("OK")), "no such button");
}

TEST(ModalWindowsTest, DriversAnswerNestedWindowsInTurn)
{
    QDialog outer;
    QDialog inner;
    auto *button = new QPushButton(QStringLiteral("&More"), &outer);
    QObject::connect(button, &QPushButton::clicked, &outer, [&] { outer.done(inner.exec()); });
    const DialogDriver first([&](QWidget *dialog) {
        EXPECT_EQ(dialog, &outer);
        clickButton(dialog, QStringLiteral("More"));
    });
    const DialogDriver second([&](QWidget *dialog) {
        EXPECT_EQ(dialog, &inner);
        inner.done(7);
    });
    EXPECT_EQ(outer.exec(), 7);
}

} // namespace
