// The real boxes and dialogs behind the prompts, each driven once as a person would.
#include "common/base/Host.h"
#include "common/base/Prompts.h"
#include "common/ui/frmProgress.h"
#include "common/ui/GuiDoors.h"
#include "common/ui/Icons.h"

#include "support/DialogDriver.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

using prompts::Answer;
using prompts::Kind;

namespace
{

// The doors as the program has them, for one test.
class PromptsTest : public ::testing::Test
{
protected:
    PromptsTest() : m_backend(prompts::backend()), m_host(host()) { installGuiDoors(nullptr); }
    ~PromptsTest() override
    {
        prompts::backend() = m_backend;
        host() = m_host;
    }

private:
    prompts::Backend m_backend;
    Host m_host;
};

bool isDefault(const QMessageBox *box, QMessageBox::StandardButton button)
{
    return box->standardButton(box->defaultButton()) == button;
}

bool hasPicture(const QMessageBox *box, const QString &name)
{
    const QPixmap shown = box->iconPixmap();
    return shown.toImage() == icon(name).pixmap(shown.deviceIndependentSize().toSize()).toImage();
}

const QMessageBox *asBox(const QWidget *dialog)
{
    return qobject_cast<const QMessageBox *>(dialog);
}

TEST_F(PromptsTest, AQuestionOffersYesNoCancelWithItsDefaultAndEscMeansCancel)
{
    {
        const DialogDriver driver([](QWidget *dialog) {
            const QMessageBox *box = asBox(dialog);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->standardButtons(),
                      QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            EXPECT_TRUE(isDefault(box, QMessageBox::No));
            EXPECT_TRUE(hasPicture(box, QStringLiteral("question")));
            EXPECT_EQ(box->text(), QStringLiteral("Discard <i>changes</i>?"));
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        EXPECT_EQ(prompts::ask(QStringLiteral("Discard <i>changes</i>?")), Answer::No);
    }
    {
        const DialogDriver driver(
            [](QWidget *dialog) { clickButton(dialog, QStringLiteral("Yes")); });
        EXPECT_EQ(prompts::ask(QStringLiteral("Discard?")), Answer::Yes);
    }
    {
        const DialogDriver driver([](QWidget *dialog) {
            EXPECT_EQ(dialog->windowTitle(), QStringLiteral("DELETE Confirmation"));
            EXPECT_TRUE(isDefault(asBox(dialog), QMessageBox::Cancel));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        EXPECT_EQ(prompts::ask(QStringLiteral("Delete?"), Answer::Cancel,
                               QStringLiteral("DELETE Confirmation")),
                  Answer::Cancel);
    }
}

TEST_F(PromptsTest, EscOnAYesNoBoxMeansNoAndAPlainBoxCarriesItsKind)
{
    {
        const DialogDriver driver([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        EXPECT_EQ(prompts::message({Kind::Question,
                                    {},
                                    QStringLiteral("Go on?"),
                                    {Answer::Yes, Answer::No},
                                    Answer::Yes}),
                  Answer::No);
    }
    {
        const DialogDriver driver([](QWidget *dialog) {
            EXPECT_TRUE(hasPicture(asBox(dialog), QStringLiteral("warning")));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        prompts::warn(QStringLiteral("Careful"));
    }
}

TEST_F(PromptsTest, TheHourglassRestsWhileAPersonIsAskedAndIsNotCounted)
{
    host().setBusy(true);
    host().setBusy(true);
    const DialogDriver driver([](QWidget *dialog) {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    prompts::inform(QStringLiteral("Saved"));
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    host().setBusy(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PromptsTest, AnInputGivesTheTextOrNothing)
{
    {
        const DialogDriver driver([](QWidget *dialog) {
            auto *line = dialog->findChild<QLineEdit *>();
            EXPECT_EQ(line->text(), QStringLiteral("12"));
            QTest::keyClicks(line, QStringLiteral("1234")); // the preset is selected
            QTest::keyClick(line, Qt::Key_Return);
        });
        EXPECT_EQ(prompts::input(QStringLiteral("Enter Issue ID"), {}, QStringLiteral("12")),
                  QStringLiteral("1234"));
    }
    const DialogDriver driver([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts::input(QStringLiteral("Enter Issue ID"), {}, {}), std::nullopt);
}

TEST_F(PromptsTest, ALongTextIsShownInTheMessageWindow)
{
    const DialogDriver driver([](QWidget *dialog) {
        EXPECT_EQ(QLatin1String(dialog->metaObject()->className()), QLatin1String("frmMessage"));
        clickButton(dialog, QStringLiteral("cmdClose"));
    });
    prompts::showText(QStringLiteral("a\nb"), Kind::Critical);
}

TEST_F(PromptsTest, FileDialogsTakeTheFilterNameAndExtension)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("list.csv"));
    const prompts::FileRequest request{
        QStringLiteral("Save As"), QStringLiteral("Comma Files (*.csv)|*.csv|All Files (*.*)|*.*"),
        folder.filePath(QStringLiteral("list")), QStringLiteral("csv")};
    {
        const DialogDriver driver([](QWidget *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            ASSERT_NE(files, nullptr);
            EXPECT_EQ(files->nameFilters().value(0), QStringLiteral("Comma Files (*.csv)"));
            EXPECT_EQ(files->windowTitle(), QStringLiteral("Save As"));
            clickButton(dialog, QStringLiteral("Save"));
        });
        EXPECT_EQ(prompts::pickFileToSave(request), QDir::toNativeSeparators(file));
    }
    const DialogDriver driver([](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(prompts::pickFileToOpen(request), QString());
}

TEST_F(PromptsTest, FiltersComeOutAsTheToolkitWantsThem)
{
    EXPECT_EQ(guidoors::nameFilters(QStringLiteral(
                  "Pictures|*.png;*.jpg|Text Files (*.txt)|*.txt|All Files (*.*)|*.*")),
              (QStringList{QStringLiteral("Pictures (*.png *.jpg)"),
                           QStringLiteral("Text Files (*.txt)"), QStringLiteral("All Files (*)")}));
    EXPECT_TRUE(guidoors::nameFilters(QString()).isEmpty());
}

TEST_F(PromptsTest, AProgressWindowLastsAsLongAsItsObject)
{
    const auto windows = [] {
        int count = 0;
        for (const QWidget *window : QApplication::topLevelWidgets())
            count += qobject_cast<const frmProgress *>(window) != nullptr ? 1 : 0;
        return count;
    };
    {
        const auto progress =
            prompts::progress(QStringLiteral("Import"), QStringLiteral("Importing"), true, true);
        EXPECT_EQ(windows(), 1);
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        progress->setPercent(50);
        EXPECT_FALSE(progress->cancelled());
        QTest::keyClick(QApplication::activeWindow(), Qt::Key_Escape);
        EXPECT_TRUE(progress->cancelled());
    }
    EXPECT_EQ(windows(), 0);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
