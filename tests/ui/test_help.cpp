// The manual in its windows, F1, and what the manual itself must hold.
#include "common/base/AppInfo.h"
#include "common/ui/FormWindow.h"
#include "common/ui/Help.h"
#include "common/ui/HelpPage.h"
#include "common/ui/HelpPopup.h"
#include "common/ui/HelpText.h"
#include "common/ui/HelpWindow.h"

#include "support/DialogDriver.h"
#include "support/FakeHost.h"
#include "support/RecordingSwitchboard.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTreeWidget>

namespace
{

QString textOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured(1));
    return found;
}

TEST(Manual, HasEveryTopicAndNoDeadLink)
{
    const QString manual = textOf(HelpFilename());
    const QStringList anchors = matches(manual, QStringLiteral("<a name=\"([^\"]+)\""));
    EXPECT_EQ(QSet<QString>(anchors.begin(), anchors.end()).size(), anchors.size());

    const QString topics =
        textOf(QStringLiteral(NORVANE_SOURCE_DIR "/src/common/base/HelpTopics.h"));
    const QStringList numbers = matches(topics, QStringLiteral("= (\\d+)"));
    EXPECT_GT(numbers.size(), 10);
    for (const QString &number : numbers)
        EXPECT_TRUE(anchors.contains(u't' + number)) << qPrintable(number);
    for (const QString &link : matches(manual, QStringLiteral("href=\"#([^\"]+)\"")))
        EXPECT_TRUE(anchors.contains(link)) << qPrintable(link);
    for (const QString &picture : matches(manual, QStringLiteral("src=\"([^\"]+)\"")))
        EXPECT_TRUE(QFile::exists(app::programFolder() + u'/' + picture)) << qPrintable(picture);
    // tags that the text engine would silently swallow
    EXPECT_EQ(manual.count(QLatin1String("<b>")), manual.count(QLatin1String("</b>")));
    EXPECT_EQ(manual.count(QLatin1String("<p>")), manual.count(QLatin1String("</p>")));
}

TEST(HelpWindow, ShowsTheTopicFollowsTheContentsAndFinds)
{
    ASSERT_TRUE(ShowHelpTopic(1070));
    HelpWindow *window = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *help = qobject_cast<HelpWindow *>(widget))
            window = help;
    }
    ASSERT_NE(window, nullptr);
    QTest::qWait(0);
    auto *contents = window->findChild<QTreeWidget *>();
    auto *page = window->findChild<HelpPage *>();
    ASSERT_NE(contents->currentItem(), nullptr);
    EXPECT_EQ(contents->currentItem()->text(0), QStringLiteral("Users"));

    // a second call serves the same window; an unknown topic is the beginning
    ASSERT_TRUE(ShowHelpTopic(999999));
    EXPECT_EQ(page->cursorForPosition(QPoint(2, 2)).position(), 0);
    contents->setCurrentItem(contents->topLevelItem(contents->topLevelItemCount() - 1));
    EXPECT_EQ(page->source().fragment(), QStringLiteral("t1610"));

    auto *box = window->findChild<QLineEdit *>();
    box->setText(QStringLiteral("TIPOFDAY"));
    QTest::keyClick(box, Qt::Key_Return);
    const int first = page->textCursor().selectionStart();
    EXPECT_EQ(page->textCursor().selectedText(), QStringLiteral("TIPOFDAY"));
    QTest::keyClick(box, Qt::Key_Return); // found from the other end again
    EXPECT_EQ(page->textCursor().selectionStart(), first);
    window->close();
}

TEST(HelpWindow, OpensInsideAModalWindowThatAsksForIt)
{
    DialogDriver driver([](QWidget *dialog) {
        ASSERT_TRUE(ShowHelpTopic(1040));
        auto *inside = dialog->findChild<HelpWindow *>();
        ASSERT_NE(inside, nullptr);
        EXPECT_EQ(QApplication::activeModalWidget(), dialog);
        inside->close();
        dialog->close();
    });
    QDialog dialog;
    dialog.exec();
}

TEST(HelpText, AChapterEndsWhereTheNextOfItsLevelBegins)
{
    QTextDocument document;
    document.setHtml(QStringLiteral("<h2><a name=\"a\"></a>One</h2><p>first</p>"
                                    "<h3><a name=\"b\"></a>Part</h3><p>second</p>"
                                    "<h2><a name=\"c\"></a>Two</h2><p>third</p>"));
    const QString whole = chapterHtml(document, QStringLiteral("a"));
    EXPECT_TRUE(whole.contains(QLatin1String("second")));
    EXPECT_FALSE(whole.contains(QLatin1String("third")));
    EXPECT_FALSE(chapterHtml(document, QStringLiteral("b")).contains(QLatin1String("first")));
    EXPECT_TRUE(chapterHtml(document, QStringLiteral("c")).contains(QLatin1String("third")));
    EXPECT_TRUE(chapterHtml(document, QStringLiteral("nowhere")).isEmpty());
    EXPECT_EQ(findAnchor(document, QString()), -1);
    EXPECT_EQ(helpHeadings(document).size(), 3);
}

TEST(HelpPage, LeavesLinksToElsewhereToTheSystem)
{
    FakeHost machine;
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("page.hlp")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<a href=\"https://example.com/a%20b\">out</a>");
    file.close();
    HelpPage page;
    ASSERT_TRUE(page.read(file.fileName()));
    Q_EMIT page.anchorClicked(QUrl(QStringLiteral("https://example.com/a%20b")));
    EXPECT_EQ(machine.opened(), QStringList{QStringLiteral("https://example.com/a%20b")});
    EXPECT_FALSE(page.read(folder.filePath(QStringLiteral("none.hlp"))));
}

TEST(HelpKey, AsksForTheTopicOfTheNearestWindowThatHasOne)
{
    RecordingSwitchboard board;
    FormWindow form;
    form.setHelpTopic(1300);
    auto *box = new QLineEdit(&form);
    auto *inner = new QDialog(&form);
    auto *innerBox = new QLineEdit(inner);
    QDialog stranger;

    QTest::keyClick(box, Qt::Key_F1);
    QTest::keyClick(innerBox, Qt::Key_F1); // none of its own
    inner->setProperty("helpTopic", 1200);
    QTest::keyClick(innerBox, Qt::Key_F1);
    QTest::keyClick(&stranger, Qt::Key_F1);
    QTest::keyClick(box, Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(board.calls(),
              (QStringList{QStringLiteral("showHelp 1300"), QStringLiteral("showHelp 1300"),
                           QStringLiteral("showHelp 1200"), QStringLiteral("showHelp 0")}));
}

TEST(HelpPopup, HoldsOneChapterInsideTheScreen)
{
    HelpPopup popup(HelpFilename(), 1050, nullptr);
    popup.showOverParent();
    const QString text = popup.findChild<HelpPage *>()->toPlainText();
    EXPECT_TRUE(text.startsWith(QLatin1String("A record that somebody else is editing")));
    EXPECT_FALSE(text.contains(QLatin1String("Lookup lists")));
    QTest::keyClick(&popup, Qt::Key_Escape);
}

} // namespace
