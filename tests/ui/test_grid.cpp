// The text grid: its matrix, editing by keyboard, the clipboard, and its delimited text.
#include "common/ui/Grid.h"
#include "common/ui/GridFind.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace
{

constexpr QChar cellDelim(254);
constexpr QChar rowDelim(u'\r');

class GridTest : public ::testing::Test
{
protected:
    GridTest()
    {
        m_before = new QLineEdit;
        m_grid = new Grid;
        m_after = new QLineEdit;
        auto *layout = new QVBoxLayout(&m_window);
        for (QWidget *control : {static_cast<QWidget *>(m_before), static_cast<QWidget *>(m_grid),
                                 static_cast<QWidget *>(m_after)})
            layout->addWidget(control);
        m_grid->setColumns({{QStringLiteral("Name")},
                            {QStringLiteral("Title")},
                            {QStringLiteral("Address")},
                            {QStringLiteral("Telephone")},
                            {QStringLiteral("Email")}});
        m_grid->setRows(50);
        m_grid->setClipSeparators(cellDelim, rowDelim);
        m_window.resize(600, 300);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        m_grid->setFocus();
    }

    void goTo(int row, int column)
    {
        m_grid->setCurrentIndex(m_grid->model()->index(row - 1, column - 1));
    }
    QPoint current() const
    {
        return {m_grid->currentIndex().row() + 1, m_grid->currentIndex().column() + 1};
    }
    // The first letter opens an editor, which gets the others.
    void type(const QString &text)
    {
        for (const QChar letter : text)
            QTest::keyClicks(QApplication::focusWidget(), letter);
    }
    void press(Qt::Key key)
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        QCoreApplication::processEvents(); // an editor commits in its own time
    }
    void setClipboard(const QString &text) { QApplication::clipboard()->setText(text); }

    QWidget m_window;
    QLineEdit *m_before;
    Grid *m_grid;
    QLineEdit *m_after;
};

TEST_F(GridTest, RowsAndColumnsCountFromOneBehindTheFixedOnes)
{
    EXPECT_EQ(m_grid->text(0, 1), QStringLiteral("Name"));
    EXPECT_EQ(m_grid->text(7, 0), QStringLiteral("7"));
    m_grid->setText(50, 5, QStringLiteral("last"));
    EXPECT_EQ(m_grid->text(50, 5), QStringLiteral("last"));
    m_grid->setText(51, 1, QStringLiteral("beyond"));
    m_grid->setText(1, 6, QStringLiteral("beyond"));
    m_grid->setText(0, 0, QStringLiteral("corner"));
    EXPECT_EQ(m_grid->text(51, 1) + m_grid->text(1, 6) + m_grid->text(0, 0), QString());
    m_grid->setText(0, 2, QStringLiteral("Job"));
    m_grid->clearCells();
    EXPECT_EQ(m_grid->text(50, 5), QString());
    EXPECT_EQ(m_grid->text(0, 2), QStringLiteral("Job"));
}

TEST_F(GridTest, EmptyGridIsFiftyLinesOfFourSeparators)
{
    const QString line = QString(4, cellDelim) + rowDelim;
    EXPECT_EQ(GridDelimBuffer(m_grid, cellDelim, rowDelim), line.repeated(50));
}

TEST_F(GridTest, DelimitedTextComesBackAsItWas)
{
    for (int row = 1; row <= 50; ++row)
        for (int column = 1; column <= 5; ++column)
            m_grid->setText(row, column,
                            QStringLiteral("r%1 c%2, \"\u00e9\"").arg(row).arg(column));
    const QString text = GridDelimBuffer(m_grid, cellDelim, rowDelim);
    EXPECT_EQ(text.count(rowDelim), 50);
    EXPECT_TRUE(text.endsWith(rowDelim));
    m_grid->clearCells();
    GridSetFromDelimBuffer(m_grid, text, cellDelim, rowDelim);
    EXPECT_EQ(GridDelimBuffer(m_grid, cellDelim, rowDelim), text);
    EXPECT_EQ(m_grid->text(50, 5), QStringLiteral("r50 c5, \"\u00e9\""));
    // A part of the grid starts where it is told to.
    EXPECT_EQ(GridDelimBuffer(m_grid, u';', u'|', 50, 4),
              QStringLiteral("r50 c4, \"\u00e9\";r50 c5, \"\u00e9\"|"));
}

TEST_F(GridTest, FillingDropsWhatDoesNotFitAndEmptiesTheRest)
{
    m_grid->setText(3, 3, QStringLiteral("old"));
    const QString line = QStringLiteral(" a ~b~c~d~e~too much|");
    GridSetFromDelimBuffer(m_grid, line.repeated(60), u'~', u'|');
    EXPECT_EQ(m_grid->rows(), 50);
    EXPECT_EQ(m_grid->text(50, 1), QStringLiteral("a"));
    EXPECT_EQ(m_grid->text(50, 5), QStringLiteral("e"));
    GridSetFromDelimBuffer(m_grid, QStringLiteral("only"), u'~', u'|');
    EXPECT_EQ(m_grid->text(1, 1), QStringLiteral("only"));
    EXPECT_EQ(m_grid->text(3, 3), QString());
    GridSetFromDelimBuffer(m_grid, QString(), u'~', u'|');
    EXPECT_EQ(m_grid->text(1, 1), QString());
}

TEST_F(GridTest, TypingEnterAndTabFillCellsInTurn)
{
    QSignalSpy edited(m_grid, &Grid::cellEdited);
    goTo(1, 1);
    type(QStringLiteral("Ann"));
    press(Qt::Key_Tab);
    EXPECT_EQ(m_grid->text(1, 1), QStringLiteral("Ann"));
    EXPECT_EQ(current(), QPoint(1, 2));
    type(QStringLiteral("Dr"));
    press(Qt::Key_Return);
    EXPECT_EQ(m_grid->text(1, 2), QStringLiteral("Dr"));
    EXPECT_EQ(current(), QPoint(2, 2));
    press(Qt::Key_Return);
    EXPECT_EQ(current(), QPoint(3, 2));
    ASSERT_EQ(edited.size(), 2);
    EXPECT_EQ(edited[1][1].toInt(), 2);
}

TEST_F(GridTest, TabLeavesTheGridAtItsEnds)
{
    goTo(50, 5);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), m_after);
    m_grid->setFocus();
    goTo(1, 1);
    QTest::keyClick(m_grid, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), m_before);
    m_grid->setFocus();
    goTo(50, 5);
    type(QStringLiteral("end"));
    press(Qt::Key_Tab);
    EXPECT_EQ(m_grid->text(50, 5), QStringLiteral("end"));
    EXPECT_EQ(QApplication::focusWidget(), m_after);
}

TEST_F(GridTest, CopiesABlockWithItsSeparatorsAndPastesItElsewhere)
{
    m_grid->setText(1, 1, QStringLiteral("a"));
    m_grid->setText(1, 2, QStringLiteral("b"));
    m_grid->setText(2, 1, QStringLiteral("c"));
    m_grid->selectionModel()->select({m_grid->model()->index(0, 0), m_grid->model()->index(1, 1)},
                                     QItemSelectionModel::ClearAndSelect);
    QTest::keyClick(m_grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("a%1b%2c%1").arg(cellDelim).arg(rowDelim));
    goTo(49, 4);
    QTest::keyClick(m_grid, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_grid->text(49, 5), QStringLiteral("b"));
    EXPECT_EQ(m_grid->text(50, 4), QStringLiteral("c"));
}

TEST_F(GridTest, PastesFromASpreadsheetAndDropsWhatLiesBeyond)
{
    setClipboard(QStringLiteral("a\tb\tc\r\nd\te\tf\r\ng\r\n"));
    goTo(49, 4);
    m_grid->paste();
    EXPECT_EQ(m_grid->text(49, 4), QStringLiteral("a"));
    EXPECT_EQ(m_grid->text(49, 5), QStringLiteral("b"));
    EXPECT_EQ(m_grid->text(50, 5), QStringLiteral("e"));
    setClipboard(QStringLiteral("one cell"));
    goTo(1, 1);
    m_grid->paste();
    EXPECT_EQ(m_grid->text(1, 1), QStringLiteral("one cell"));
}

TEST_F(GridTest, ALockedColumnStaysAsItIsAndRowsKeepWhatTheyStandFor)
{
    m_grid->setText(2, 1, QStringLiteral("Ann"));
    m_grid->setRowData(2, 1000);
    m_grid->setColumnEditable(1, false);
    QApplication::clipboard()->setText(QStringLiteral("x\ty"));
    goTo(2, 1);
    m_grid->paste();
    QTest::keyClick(m_grid, Qt::Key_Delete);
    QTest::keyClicks(m_grid, QStringLiteral("z"));
    EXPECT_EQ(m_grid->text(2, 1), QStringLiteral("Ann"));
    EXPECT_EQ(m_grid->text(2, 2), QStringLiteral("y"));
    EXPECT_EQ(m_grid->rowData(2).toInt(), 1000);
    EXPECT_FALSE(m_grid->rowData(51).isValid());
    m_grid->setColumnEditable(1, true);
    QTest::keyClicks(m_grid, QStringLiteral("z"));
    m_grid->finishEditing();
    EXPECT_EQ(m_grid->text(2, 1), QStringLiteral("z"));
}

TEST_F(GridTest, FindsATextInEitherDirectionButNotRound)
{
    m_grid->setText(3, 2, QStringLiteral("Acme Ltd "));
    m_grid->setText(7, 1, QStringLiteral("acme"));
    const struct {
        frmFind::Request request;
        int from;
        int found; // 0: not found
    } searches[] = {
        {{QStringLiteral("ACME")}, 1, 3},
        {{QStringLiteral("ACME")}, 3, 7},
        {{QStringLiteral("ACME")}, 7, 0},
        {{QStringLiteral("acme"), false, true}, 0, 7},
        {{QStringLiteral("Ltd"), true}, 0, 0},
        {{QStringLiteral("acme ltd"), true}, 0, 3},
        {{QStringLiteral("acme"), false, false, true}, 7, 3},
        {{QStringLiteral("acme"), false, false, true}, 3, 0},
    };
    for (const auto &search : searches) {
        goTo(50, 1);
        EXPECT_EQ(GridFind(m_grid, search.request, search.from), search.found > 0);
        EXPECT_EQ(current().x(), search.found > 0 ? search.found : 50);
    }
    GridSelectRow(m_grid, 51);
    EXPECT_EQ(current().x(), 50);
}

TEST_F(GridTest, ALockedGridRefusesEveryChangeButCanBeCopied)
{
    m_grid->setText(1, 1, QStringLiteral("kept"));
    m_grid->setEditable(false);
    goTo(1, 1);
    QTest::keyClick(m_grid, Qt::Key_X, Qt::ControlModifier);
    QTest::keyClick(m_grid, Qt::Key_Delete);
    type(QStringLiteral("x"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("kept"));
    setClipboard(QStringLiteral("other"));
    m_grid->paste();
    EXPECT_EQ(m_grid->text(1, 1), QStringLiteral("kept"));
    m_grid->setEditable(true);
    QTest::keyClick(m_grid, Qt::Key_Delete);
    EXPECT_EQ(m_grid->text(1, 1), QString());
}

} // namespace
