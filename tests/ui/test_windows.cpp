// The registry of open windows, and the message, progress and preview windows.
#include "common/base/AppInfo.h"
#include "common/ui/BusyWindow.h"
#include "common/ui/FormWindow.h"
#include "common/ui/frmFind.h"
#include "common/ui/frmMessage.h"
#include "common/ui/frmProgress.h"
#include "common/ui/frmRichEdit.h"
#include "common/ui/Switchboard.h"

#include "support/DialogDriver.h"
#include "support/PdfPrinter.h"
#include "support/RecordingSwitchboard.h"
#include "support/ScriptedPrompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace
{

class StubbornForm : public FormWindow
{
    Q_OBJECT
public:
    bool m_refuses = false;

protected:
    void closeEvent(QCloseEvent *event) override { event->setAccepted(!m_refuses); }
};

class WindowsTest : public ::testing::Test
{
protected:
    WindowsTest() { m_area.show(); }

    StubbornForm *open(const QString &tag)
    {
        auto *form = new StubbornForm;
        form->setTagText(tag);
        form->setAttribute(Qt::WA_DeleteOnClose);
        m_area.addSubWindow(form)->setAttribute(Qt::WA_DeleteOnClose);
        form->show();
        return form;
    }
    static void deleteClosed()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QMdiArea m_area;
};

TEST_F(WindowsTest, AWindowSwitchedOffStaysTheOneAtWork)
{
    FormWindow *other = open("OTHER1");
    FormWindow *worker = open("WORKER1");
    for (FormWindow *form : {other, worker}) {
        auto *box = new QLineEdit(form);
        box->show();
        box->setFocus();
    }
    m_area.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_area));
    ASSERT_EQ(m_area.activeSubWindow(), worker->parentWidget());
    const auto work = [&] {
        QDialog progress;
        progress.show();
        progress.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&progress));
        progress.close();
        m_area.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_area));
        EXPECT_EQ(m_area.activeSubWindow(), worker->parentWidget());
    };
    {
        const BusyWindow busy(worker->findChild<QLineEdit *>());
        {
            const BusyWindow within(worker);
        }
        EXPECT_FALSE(worker->isEnabled());
        EXPECT_FALSE(worker->close());
        work();
    }
    EXPECT_EQ(QApplication::focusWidget(), worker->findChild<QLineEdit *>());
}

TEST_F(WindowsTest, RegistryGoesByTheTagExactly)
{
    StubbornForm *first = open(QStringLiteral("C42"));
    open(QStringLiteral("C-1"));
    EXPECT_TRUE(IsFormLoaded(QStringLiteral("C-1")));
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("C4")));
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("c42")));
    EXPECT_EQ(GetFormWithTag(QStringLiteral("C42")), first);
    first->setTagText(QStringLiteral("C43"));
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("C42")));
    EXPECT_EQ(openForms().size(), 2);
}

TEST_F(WindowsTest, AClosedWindowIsGoneAtOnceAndTakesItsFrameWithIt)
{
    for (const bool byFrame : {false, true}) {
        StubbornForm *form = open(QStringLiteral("I7"));
        QWidget *frame = form->parentWidget();
        (byFrame ? frame : form)->close();
        EXPECT_FALSE(IsFormLoaded(QStringLiteral("I7")));
        deleteClosed();
        EXPECT_TRUE(m_area.subWindowList().isEmpty());
    }
}

TEST_F(WindowsTest, BringingToTopRestoresAMinimisedWindow)
{
    StubbornForm *first = open(QStringLiteral("C1"));
    StubbornForm *second = open(QStringLiteral("C2"));
    auto *frame = qobject_cast<QMdiSubWindow *>(first->parentWidget());
    frame->showMinimized();
    m_area.setActiveSubWindow(qobject_cast<QMdiSubWindow *>(second->parentWidget()));
    BringFormToTop(QStringLiteral("C1"));
    EXPECT_FALSE(frame->isMinimized());
    EXPECT_EQ(m_area.activeSubWindow(), frame);
    BringFormToTop(QStringLiteral("nobody"));
    EXPECT_EQ(m_area.activeSubWindow(), frame);
}

TEST_F(WindowsTest, UnloadAllStopsAtARefusalAndSparesTheException)
{
    open(QStringLiteral("C1"));
    StubbornForm *stubborn = open(QStringLiteral("C2"));
    open(QStringLiteral("C3"));
    open(QStringLiteral("MAINFORM"));
    stubborn->m_refuses = true;
    EXPECT_FALSE(UnloadAll(QStringLiteral("MAINFORM")));
    EXPECT_FALSE(IsFormLoaded(QStringLiteral("C1")));
    EXPECT_TRUE(stubborn->isVisible());
    EXPECT_TRUE(IsFormLoaded(QStringLiteral("C3")));
    stubborn->m_refuses = false;
    EXPECT_TRUE(UnloadAll(QStringLiteral("MAINFORM")));
    EXPECT_EQ(openForms().size(), 1);
    EXPECT_TRUE(UnloadForm(QStringLiteral("frmCustomer")));
    EXPECT_EQ(openForms().size(), 1);
    EXPECT_TRUE(UnloadForm(openForms().first()->formName()));
    EXPECT_TRUE(openForms().isEmpty());
}

TEST_F(WindowsTest, EscPressesCancelAndEnterTheFocusedElseTheDefaultButton)
{
    StubbornForm *form = open(QStringLiteral("C1"));
    auto *line = new QLineEdit(form);
    QStringList pressed;
    for (const char *name : {"OKButton", "CancelButton", "cmdApply"}) {
        auto *button = new QPushButton(form);
        button->setObjectName(QLatin1String(name));
        button->setDefault(name == std::string_view("OKButton"));
        button->show();
        QObject::connect(button, &QPushButton::clicked, form,
                         [&pressed, button] { pressed.append(button->objectName()); });
    }
    line->show();
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    QTest::keyClick(line, Qt::Key_Escape);
    auto *apply = form->findChild<QPushButton *>(QStringLiteral("cmdApply"));
    apply->setFocus();
    QTest::keyClick(apply, Qt::Key_Return);
    form->findChild<QPushButton *>(QStringLiteral("OKButton"))->setEnabled(false);
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_EQ(pressed.join(u' '), QStringLiteral("OKButton CancelButton cmdApply"));
}

TEST_F(WindowsTest, AFormThatClosesAnotherDoesNoHarm)
{
    StubbornForm *first = open(QStringLiteral("C1"));
    StubbornForm *second = open(QStringLiteral("C2"));
    QObject::connect(first, &QObject::destroyed, second, [second] { delete second; });
    EXPECT_TRUE(first->close());
    deleteClosed();
    EXPECT_TRUE(UnloadAll(QString()));
    EXPECT_TRUE(openForms().isEmpty());
}

TEST(MessageTest, ShowsItsTextWithOnePictureAndCopiesIt)
{
    struct {
        prompts::Kind kind;
        const char *picture;
    } const cases[] = {{prompts::Kind::Information, "ImageInfo"},
                       {prompts::Kind::Warning, "imgWarn"},
                       {prompts::Kind::Critical, "imageCritical"},
                       {prompts::Kind::Locked, "imgLocked"}};
    for (const auto &each : cases) {
        frmMessage form;
        form.Init(QStringLiteral("line 1\n<b>line 2</b>"), each.kind, 0);
        form.show();
        int pictures = 0;
        for (const QLabel *label : form.findChildren<QLabel *>())
            pictures += label->isVisible() ? 1 : 0;
        EXPECT_EQ(pictures, 1);
        EXPECT_TRUE(form.findChild<QLabel *>(QLatin1String(each.picture))->isVisible());
        EXPECT_EQ(form.windowTitle(), app::title());
        clickButton(&form, QStringLiteral("cmdCopy"));
        EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("line 1\n<b>line 2</b>"));
    }
}

TEST(MessageTest, AVeryLongTextStaysOnTheScreenAndCannotBeTypedOver)
{
    frmMessage form;
    form.Init(
        QStringLiteral("a rather long line of words ").repeated(40).append(u'\n').repeated(300),
        prompts::Kind::Warning, 1220);
    EXPECT_EQ(form.property("helpTopic").toInt(), 1220);
    form.show();
    EXPECT_LE(form.height(), form.screen()->availableSize().height());
    EXPECT_LE(form.width(), form.screen()->availableSize().width());
    auto *box = form.findChild<QPlainTextEdit *>(QStringLiteral("txtMsg"));
    const QString before = box->toPlainText();
    QTest::keyClicks(box, QStringLiteral("x"));
    EXPECT_EQ(box->toPlainText(), before);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST(MessageTest, PrintsSavesAndSearchesItsText)
{
    const PdfPrinter printer;
    ScriptedPrompts person;
    frmMessage form;
    form.Init(QStringLiteral("alpha beta\nAlphabet alpha"), prompts::Kind::Information, 0);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(&form, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(printer.pages().value(0).contains(QStringLiteral("Alphabet alpha")));
    person.expectSaveFile(QStringLiteral("Save As"), QString());
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier);
    person.expect(QStringLiteral("EmailMsg"));
    clickButton(&form, QStringLiteral("cmdEmail"));

    QTest::keyClick(&form, Qt::Key_F, Qt::ControlModifier);
    auto *find = form.findChild<frmFind *>();
    ASSERT_NE(find, nullptr);
    const auto *box = form.findChild<QPlainTextEdit *>(QStringLiteral("txtMsg"));
    const auto next = [&] {
        clickButton(find, QStringLiteral("OKButton"));
        return box->textCursor().selectionStart();
    };
    EXPECT_FALSE(find->findChild<QPushButton *>(QStringLiteral("OKButton"))->isEnabled());
    QTest::keyClicks(find->findChild<QLineEdit *>(QStringLiteral("textFind")),
                     QStringLiteral("alpha"));
    EXPECT_EQ(next(), 0);
    EXPECT_EQ(next(), 11); // in "Alphabet"
    clickButton(find, QStringLiteral("optDirectionUp"));
    EXPECT_EQ(next(), 0);
    clickButton(find, QStringLiteral("optDirectionDown"));
    clickButton(find, QStringLiteral("ckWholeWordOnly"));
    EXPECT_EQ(next(), 20);
    const QString more = QStringLiteral("No more occurences of 'alpha' found! Would you like");
    person.expect(more, prompts::Answer::No);
    EXPECT_EQ(next(), 20);
    person.expect(more, prompts::Answer::Yes);
    EXPECT_EQ(next(), 0);
    clickButton(find, QStringLiteral("ckMatchCase"));
    find->findChild<QLineEdit *>(QStringLiteral("textFind"))->setText(QStringLiteral("ALPHA"));
    person.expect(QStringLiteral("No more occurences of 'ALPHA'"), prompts::Answer::Yes);
    person.expect(QStringLiteral("No occurences of 'ALPHA' found!"));
    EXPECT_EQ(next(), 0);
}

TEST(ProgressTest, EscAndTheFrameCountAsCancelAndTheFormStays)
{
    for (const int way : {0, 1, 2}) {
        frmProgress form;
        form.Init(QStringLiteral("Import"), QStringLiteral("Importing..."), true, true);
        form.Display();
        EXPECT_FALSE(form.m_bCancel);
        EXPECT_FALSE(form.isModal());
        if (way == 0)
            clickButton(&form, QStringLiteral("cmdCancel"));
        else if (way == 1)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            form.close();
        EXPECT_TRUE(form.m_bCancel);
        EXPECT_TRUE(form.isVisible());
        form.Display();
        EXPECT_FALSE(form.m_bCancel);
    }
}

TEST(ProgressTest, WithoutCancelNothingStopsItAndTheBarIgnoresNonsense)
{
    frmProgress form;
    form.Init(QStringLiteral("Statistics"), QStringLiteral("Counting"), false, false);
    form.Display();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.m_bCancel);
    EXPECT_FALSE(form.findChild<QPushButton *>(QStringLiteral("cmdCancel"))->isVisible());
    auto *bar = form.findChild<QProgressBar *>(QStringLiteral("pbar"));
    EXPECT_FALSE(bar->isVisible());
    form.setPercent(40);
    form.setPercent(101);
    form.setPercent(-1);
    EXPECT_EQ(bar->value(), 40);
}

TEST(PreviewTest, ShowsTheTextCopiesItAllAndCloses)
{
    RecordingSwitchboard board;
    auto *form = new frmRichEdit;
    form->Init(QStringLiteral("Mailing label"), QStringLiteral("ANN SMITH\nBOSTON"));
    switchboard().showChild(form);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Mailing label"));
    clickButton(form, QStringLiteral("cmdCopyToClipboard"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ANN SMITH\nBOSTON"));
    EXPECT_EQ(form->formName(), QStringLiteral("frmRichEdit"));
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_TRUE(openForms().isEmpty());
}

} // namespace

#include "test_windows.moc"
