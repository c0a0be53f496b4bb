// The list of the screens: keys, selection, sorting, and what it does with very many rows.
#include "common/base/Prompts.h"
#include "common/base/TextOrder.h"
#include "common/ui/ListView.h"
#include "support/FakeHost.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

namespace
{

QString key(int id)
{
    return QLatin1Char('N') + QString::number(id);
}

class ListViewTest : public ::testing::Test
{
protected:
    ListViewTest()
    {
        m_list.setColumns({{QStringLiteral("Name")},
                           {QStringLiteral("Date")},
                           {QStringLiteral("Sort"), {}, 0, true}});
        m_list.setSortSubstitute(1, 2);
        m_list.resize(400, 200);
        m_list.show();
    }

    void add(int id, const QString &name, const QString &date = {}, const QString &sort = {})
    {
        m_list.addItem(key(id), {name, date, sort});
    }
    QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < m_list.itemCount(); ++row)
            result.append(m_list.itemText(row, 0));
        return result;
    }
    void clickHeading(int column)
    {
        QHeaderView *header = m_list.header();
        const QPoint at(header->sectionViewportPosition(column) + 12, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }

    ListView m_list;
};

TEST_F(ListViewTest, SortsTextWithoutRegardToCaseAndKeepsEqualRowsInOrder)
{
    add(1, QStringLiteral("beta"));
    add(2, QStringLiteral("Alpha"));
    add(3, QStringLiteral("BETA"));
    add(4, QStringLiteral("\u00c9mile")); // beside its plain letter, not behind Z
    add(5, QStringLiteral("Zoe"));
    m_list.sortBy(0, Qt::AscendingOrder);
    EXPECT_EQ(m_list.rowOfKey(key(2)), 0);
    EXPECT_LT(m_list.rowOfKey(key(1)), m_list.rowOfKey(key(3)));
    m_list.sortBy(0, Qt::DescendingOrder);
    EXPECT_EQ(m_list.rowOfKey(key(5)), 0);
    EXPECT_LT(m_list.rowOfKey(key(1)), m_list.rowOfKey(key(3)));
}

TEST_F(ListViewTest, NumbersPaddedWithBlanksSortAsNumbers)
{
    for (const int id : {1000, 999, 123456, 20000})
        add(id, QString::number(id).rightJustified(6));
    m_list.sortBy(0, Qt::AscendingOrder);
    EXPECT_EQ(m_list.itemKey(0), key(999));
    EXPECT_EQ(m_list.itemKey(1), key(1000));
    EXPECT_EQ(m_list.itemKey(3), key(123456));
}

TEST_F(ListViewTest, EachHeadingClickTurnsTheOrderWhicheverColumnItIs)
{
    add(1, QStringLiteral("b"), QStringLiteral("2/1/2004"), QStringLiteral("20040201"));
    add(2, QStringLiteral("a"), QStringLiteral("12/1/2003"), QStringLiteral("20031201"));
    m_list.sortBy(0, Qt::AscendingOrder);
    clickHeading(1);
    EXPECT_EQ(m_list.sortColumn(), 2);
    EXPECT_EQ(m_list.sortOrder(), Qt::DescendingOrder);
    EXPECT_EQ(m_list.itemKey(0), key(1));
    // The arrow stands in the heading that was clicked.
    EXPECT_EQ(m_list.header()->sortIndicatorSection(), 1);
    clickHeading(0);
    EXPECT_EQ(m_list.sortColumn(), 0);
    EXPECT_EQ(m_list.sortOrder(), Qt::AscendingOrder);
    EXPECT_EQ(names(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(m_list.header()->sortIndicatorSection(), 0);
}

TEST_F(ListViewTest, ASortedListStaysSortedWhenRowsComeIn)
{
    m_list.sortBy(0, Qt::AscendingOrder);
    add(1, QStringLiteral("m"));
    add(2, QStringLiteral("a"));
    add(3, QStringLiteral("M"));
    m_list.beginLoad();
    add(4, QStringLiteral("c"));
    EXPECT_EQ(m_list.itemCount(), 4);
    m_list.addItems({{key(5), {QStringLiteral("b")}}});
    m_list.endLoad();
    EXPECT_EQ(names().join(u' '), QStringLiteral("a b c m M"));
}

TEST_F(ListViewTest, SelectionFollowsItsRowThroughASort)
{
    add(1, QStringLiteral("b"));
    add(2, QStringLiteral("a"));
    EXPECT_TRUE(LvSelectItem(&m_list, key(1)));
    m_list.sortBy(0, Qt::AscendingOrder);
    EXPECT_EQ(LvGetSelectedItemKey(&m_list), key(1));
    EXPECT_EQ(LvNumItemsSelected(&m_list), 1);
}

TEST_F(ListViewTest, KeysAreExactAndTextsIgnoreCase)
{
    add(1, QStringLiteral("Stra\u00dfe"));
    add(2, QStringLiteral("Smith"));
    EXPECT_FALSE(LvSelectItem(&m_list, QStringLiteral("n2")));
    EXPECT_FALSE(LvSelectItem(&m_list, QString()));
    EXPECT_FALSE(LvIsItemSelected(&m_list));
    EXPECT_EQ(LvGetSelectedItemText(&m_list), QString());
    EXPECT_TRUE(LvSelectItemByText(&m_list, QStringLiteral("SMITH")));
    EXPECT_EQ(LvGetSelectedItemKey(&m_list), key(2));
    EXPECT_FALSE(LvSelectItemByText(&m_list, QStringLiteral("Smit")));
}

TEST_F(ListViewTest, SelectsAllNoneAndTheOthers)
{
    EXPECT_FALSE(LvSelectAllItems(&m_list, true));
    LvSelectFirstItem(&m_list);
    LvInvertSelection(&m_list);
    for (int id = 1; id <= 4; ++id)
        add(id, QString::number(id));
    LvSelectFirstItem(&m_list);
    LvInvertSelection(&m_list);
    EXPECT_EQ(LvNumItemsSelected(&m_list), 3);
    EXPECT_EQ(LvGetSelectedItemKey(&m_list), key(2));
    EXPECT_TRUE(LvSelectAllItems(&m_list, true));
    EXPECT_EQ(LvNumItemsSelected(&m_list), 4);
    EXPECT_TRUE(LvSelectAllItems(&m_list, false));
    EXPECT_FALSE(LvIsItemSelected(&m_list));
}

TEST_F(ListViewTest, EnterAndDoubleClickActivateAndEnterWithoutASelectionGoesOn)
{
    QSignalSpy activated(&m_list, &ListView::itemActivated);
    add(7, QStringLiteral("x"));
    QTest::keyClick(&m_list, Qt::Key_Return);
    EXPECT_TRUE(activated.isEmpty());
    LvSelectFirstItem(&m_list);
    QTest::keyClick(&m_list, Qt::Key_Enter);
    const QPoint first = m_list.visualRect(m_list.model()->index(0, 0)).center();
    QTest::mouseClick(m_list.viewport(), Qt::LeftButton, {}, first);
    QTest::mouseDClick(m_list.viewport(), Qt::LeftButton, {}, first);
    ASSERT_EQ(activated.size(), 2);
    EXPECT_EQ(activated[0][0].toString(), key(7));
    EXPECT_EQ(activated[1][0].toString(), key(7));
}

TEST_F(ListViewTest, CopiesTheShownColumnsOfTheSelectedRows)
{
    add(1, QStringLiteral("Ann"), QStringLiteral("2/1/2004"), QStringLiteral("20040201"));
    add(2, QStringLiteral("Bob"), QStringLiteral("3/1/2004"), QStringLiteral("20040301"));
    LvSelectAllItems(&m_list, true);
    QTest::keyClick(&m_list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("Ann\t2/1/2004\nBob\t3/1/2004"));
}

TEST_F(ListViewTest, RemovesByKeyAndClearKeepsTheOrderForTheNextLoad)
{
    m_list.sortBy(0, Qt::DescendingOrder);
    add(1, QStringLiteral("a"));
    add(2, QStringLiteral("b"));
    EXPECT_TRUE(m_list.removeItem(key(2)));
    EXPECT_FALSE(m_list.removeItem(key(2)));
    EXPECT_EQ(names(), QStringList(QStringLiteral("a")));
    m_list.clearItems();
    EXPECT_EQ(m_list.itemCount(), 0);
    EXPECT_EQ(m_list.rowOfKey(key(1)), -1);
    add(3, QStringLiteral("c"));
    add(4, QStringLiteral("d"));
    EXPECT_EQ(m_list.itemKey(0), key(4));
}

TEST_F(ListViewTest, HiddenColumnsStayHiddenAndWidthsAreGivenBack)
{
    m_list.setColumnWidth(0, 222);
    add(1, QStringLiteral("a"));
    m_list.clearItems();
    EXPECT_TRUE(m_list.isColumnHidden(2));
    EXPECT_EQ(m_list.columns()[0].width, 222 * 96 / m_list.logicalDpiX());
    EXPECT_EQ(m_list.columns()[2].width, 0);
}

TEST_F(ListViewTest, OnlyLabelsAreTypedOverAndTheStoreDecidesWhatTheyBecome)
{
    add(1, QStringLiteral("old"), QStringLiteral("date"));
    QString stored;
    const auto store = [&](const QString &at, const QString &text) -> std::optional<QString> {
        stored = at + u'=' + text;
        return text == u"refused" ? std::nullopt : std::optional(text.toUpper());
    };
    const auto edit = [this](const QString &text) {
        EXPECT_TRUE(m_list.editLabel(key(1)));
        auto *box = m_list.findChild<QLineEdit *>();
        EXPECT_EQ(box->selectedText(), m_list.itemText(0, 0));
        QTest::keyClicks(box, text);
        m_list.finishEditing();
        QTest::qWait(0);
    };
    EXPECT_FALSE(m_list.editLabel(key(1))) << "not before it is allowed";
    m_list.setLabelEditing(store, 8);
    EXPECT_FALSE(m_list.editLabel(key(2)));
    edit(QStringLiteral("much longer"));
    EXPECT_EQ(stored, QStringLiteral("N1=much lon"));
    EXPECT_EQ(m_list.itemText(0, 0), QStringLiteral("MUCH LON"));
    edit(QStringLiteral("refused"));
    EXPECT_EQ(stored, QStringLiteral("N1=refused"));
    EXPECT_EQ(m_list.itemText(0, 0), QStringLiteral("MUCH LON"));
    EXPECT_FALSE(m_list.model()->flags(m_list.model()->index(0, 1)) & Qt::ItemIsEditable);

    // The row may go while the store asks the person something.
    m_list.setLabelEditing([this](const QString &at, const QString &text) {
        m_list.removeItem(at);
        return std::optional(text);
    });
    edit(QStringLiteral("gone"));
    EXPECT_EQ(m_list.itemCount(), 0);
    m_list.setLabelEditing(nullptr);
    add(1, QStringLiteral("old"));
    EXPECT_FALSE(m_list.editLabel(key(1)));
}

TEST_F(ListViewTest, FilesAreListedAsTheyAreOnTheDisk)
{
    const FakeHost machine;
    const QTemporaryDir dir;
    const QDir folder(dir.path());
    const auto write = [&folder](const QString &name, qint64 size) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        const QDateTime at(QDate(2004, 3, 14), QTime(15, 5, 9), Qt::LocalTime);
        ASSERT_TRUE(file.setFileTime(at, QFileDevice::FileModificationTime));
    };
    write(QStringLiteral("Offer \u00c9t\u00e9.TXT"), 0);
    write(QStringLiteral("big.pdf"), 1024 * 1234);
    write(QStringLiteral(".hidden"), 1025);
    ASSERT_TRUE(folder.mkdir(QStringLiteral("Inside")));
    LvGetFileList(&m_list, dir.path());
    EXPECT_EQ(names(),
              (QStringList{QStringLiteral(".hidden"), QStringLiteral("big.pdf"),
                           QStringLiteral("Inside"), QStringLiteral("Offer \u00c9t\u00e9.TXT")}));
    EXPECT_EQ(m_list.itemText(0, 1), QStringLiteral("1 KB"));
    EXPECT_EQ(m_list.itemText(1, 1), QStringLiteral("1,234 KB"));
    EXPECT_EQ(m_list.itemText(3, 1), QStringLiteral("1 KB"));
    EXPECT_EQ(m_list.itemText(3, 3), QStringLiteral("3/14/2004 3:05 PM"));
    EXPECT_EQ(m_list.itemText(1, 2), m_list.itemText(1, 2).toLower());
    EXPECT_TRUE(m_list.itemText(1, 2).contains(QStringLiteral("pdf")));
    EXPECT_TRUE(LvSelectItemByText(&m_list, QStringLiteral("OFFER \u00e9T\u00c9.txt")));
    EXPECT_FALSE(machine.isBusy());
    LvGetFileList(&m_list, folder.filePath(QStringLiteral("nowhere")));
    EXPECT_EQ(m_list.itemCount(), 0);
    LvGetFileList(&m_list, dir.path());
    LvGetFileList(&m_list, {});
    EXPECT_EQ(m_list.itemCount(), 0);
}

TEST_F(ListViewTest, KeepsEveryTextAsItIs)
{
    const QStringList texts{QString(),
                            QStringLiteral("caf\u00e9"),
                            QStringLiteral("\u20ac 5 \u6f22\u5b57"),
                            QString(100, u'x'),
                            QString(70000, u'\u0416'),
                            QString(2'000'000, u'y'),
                            QString(QChar(0xD800)) + u'\0' + u'z'}; // half a character
    for (int id = 0; id < texts.size(); ++id)
        m_list.addItem(texts[id] + key(id), {texts[id], QString(), texts[texts.size() - 1 - id]});
    for (int id = 0; id < texts.size(); ++id) {
        EXPECT_EQ(m_list.rowOfKey(texts[id] + key(id)), id);
        EXPECT_EQ(m_list.itemKey(id), texts[id] + key(id));
        EXPECT_EQ(m_list.itemText(id, 0), texts[id]);
        EXPECT_EQ(m_list.itemText(id, 1), QString());
        EXPECT_EQ(m_list.itemText(id, 2), texts[texts.size() - 1 - id]);
    }
    EXPECT_EQ(m_list.itemText(0, 3), QString());
    EXPECT_EQ(m_list.itemText(0, -1), QString());
    EXPECT_EQ(m_list.itemText(int(texts.size()), 0), QString());
    EXPECT_TRUE(m_list.removeItem(texts[4] + key(4)));
    EXPECT_EQ(m_list.itemText(4, 0), texts[5]);
}

TEST_F(ListViewTest, AHeadingMayBeginAscending)
{
    add(1, QStringLiteral("b"), QStringLiteral("x"), QStringLiteral("2"));
    add(2, QStringLiteral("a"), QStringLiteral("y"), QStringLiteral("1"));
    m_list.setAscendingFirst(true);
    clickHeading(1);
    EXPECT_EQ(m_list.itemKey(0), key(2));
    clickHeading(1);
    EXPECT_EQ(m_list.itemKey(0), key(1));
    clickHeading(0);
    EXPECT_EQ(m_list.sortOrder(), Qt::AscendingOrder);
    clickHeading(1);
    EXPECT_EQ(m_list.sortOrder(), Qt::AscendingOrder);
}

TEST_F(ListViewTest, SortsLikeAPlainStableSort)
{
    std::mt19937 random(7);
    const auto below = [&random](int limit) { return static_cast<int>(random() % limit); };
    QStringList texts;
    for (int id = 0; id < 3000; ++id) {
        QString text;
        for (int length = below(4) == 0 ? 30 : below(12); length > 0; --length)
            text += QStringLiteral("aAb\u00e9e ")[below(6)];
        texts += below(3) == 0 && id > 0 ? texts[below(id)] : text;
        add(id, texts.last());
    }
    const TextOrder order;
    for (const Qt::SortOrder direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        std::vector<int> rows(3000);
        std::iota(rows.begin(), rows.end(), 0);
        std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
            const int difference = order.key(texts[left]).compare(order.key(texts[right]));
            return direction == Qt::AscendingOrder ? difference < 0 : difference > 0;
        });
        m_list.beginLoad(); // in the order they were added again
        m_list.clearItems();
        for (int id = 0; id < 3000; ++id)
            add(id, texts[id]);
        m_list.sortBy(0, direction);
        m_list.endLoad();
        for (int at = 0; at < 3000; ++at)
            ASSERT_EQ(m_list.itemKey(at), key(rows[static_cast<size_t>(at)])) << at;
    }
}

TEST_F(ListViewTest, ColumnsFollowTheWidthOfTheListButStayReadable)
{
    m_list.setColumns({{QStringLiteral("Date"), {}, 60}, {QStringLiteral("Text"), {}, 80}});
    m_list.setShares({20, 0});
    for (const int width : {900, 2000}) {
        m_list.resize(width, 200);
        EXPECT_EQ(m_list.columnWidth(0), m_list.viewport()->width() / 5);
        EXPECT_EQ(m_list.columnWidth(0) + m_list.columnWidth(1), m_list.viewport()->width());
    }
    m_list.resize(110, 200);
    const QList<ListView::Column> narrow = m_list.columns();
    EXPECT_EQ(narrow[0].width, 60);
    EXPECT_EQ(narrow[1].width, 80);
}

// Some desktops have dark themes that say nothing of the colour for hints.
TEST_F(ListViewTest, AnEmptyListSaysWhyOnADarkThemeToo)
{
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    m_list.setPalette(dark);
    m_list.setEmptyText(QStringLiteral("No issues yet."));
    const QImage shown = m_list.viewport()->grab().toImage();
    int brightest = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            brightest = std::max(brightest, shown.pixelColor(x, y).lightness());
    EXPECT_GT(brightest, 120);
}

TEST_F(ListViewTest, AnEmptyListSaysWhy)
{
    const QImage blank = m_list.grab().toImage();
    m_list.setEmptyText(QStringLiteral("No issues yet."));
    EXPECT_NE(m_list.grab().toImage(), blank);
}

TEST_F(ListViewTest, TakesAHundredThousandRowsSortedAndSelected)
{
    constexpr int count = 100'000;
    m_list.sortBy(0, Qt::AscendingOrder);
    QList<ListView::Row> rows;
    for (int id = 0; id < count; ++id)
        rows.append(
            {key(id), {QStringLiteral("Name %1").arg(id * 7919 % count, 6, 10, QChar(u'0'))}});
    m_list.beginLoad();
    m_list.addItems(std::move(rows));
    m_list.endLoad();
    ASSERT_EQ(m_list.itemCount(), count);
    EXPECT_EQ(m_list.itemText(0, 0), QStringLiteral("Name 000000"));
    EXPECT_EQ(m_list.itemText(count - 1, 0), QStringLiteral("Name 099999"));
    EXPECT_TRUE(LvSelectAllItems(&m_list, true));
    EXPECT_EQ(LvNumItemsSelected(&m_list), count);
    LVSort(&m_list, 0);
    EXPECT_EQ(m_list.itemText(0, 0), QStringLiteral("Name 099999"));
    EXPECT_EQ(LvNumItemsSelected(&m_list), count);
    EXPECT_TRUE(LvSelectItem(&m_list, key(4711)));
    EXPECT_EQ(LvGetSelectedItemText(&m_list),
              QStringLiteral("Name %1").arg(4711 * 7919 % count, 6, 10, QChar(u'0')));
}

// A progress window that is cancelled from the start, in the hands of somebody slow.
class CancelledSort : public ListViewTest
{
protected:
    CancelledSort() : m_before(prompts::backend())
    {
        struct Pressed : prompts::Progress {
            void setPercent(int) override {}
            void setMessage(const QString &) override {}
            bool cancelled() const override { return true; }
        };
        prompts::backend().progress = [this](const QString &, const QString &message, bool,
                                             bool cancel) {
            EXPECT_EQ(message, QStringLiteral("Sorting the list. Please wait..."));
            EXPECT_TRUE(cancel);
            EXPECT_FALSE(m_list.isEnabled()); // nothing else can be begun
            ++m_asked;
            return std::make_unique<Pressed>();
        };
        rows = 300'000;
        m_list.beginLoad();
        for (int id = 0; id < rows; ++id)
            add(id, QString::number(qint64{id} * 7919 % rows));
    }
    ~CancelledSort() override { prompts::backend() = m_before; }

    prompts::Backend m_before;
    int rows = 0;
    int m_asked = 0;
};

TEST_F(CancelledSort, ShowsWhatWasLoadedAsItCame)
{
    m_list.sortBy(0, Qt::AscendingOrder);
    m_list.endLoad();
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_list.itemCount(), rows);
    EXPECT_EQ(m_list.itemKey(1), key(1));
    EXPECT_EQ(m_list.sortColumn(), -1);
    EXPECT_FALSE(m_list.header()->isSortIndicatorShown());
    EXPECT_TRUE(m_list.isEnabled());
}

TEST_F(CancelledSort, DoesNotComeWhenTheLoadIsQuiet)
{
    m_list.sortBy(0, Qt::AscendingOrder);
    m_list.endLoad(true);
    EXPECT_EQ(m_asked, 0);
    EXPECT_EQ(m_list.itemText(rows - 1, 0), QStringLiteral("99999"));
}

TEST_F(CancelledSort, LeavesAListThatIsShownAsItWas)
{
    m_list.endLoad();
    EXPECT_EQ(m_asked, 0);
    EXPECT_TRUE(LvSelectItem(&m_list, key(5)));
    clickHeading(0);
    EXPECT_EQ(m_asked, 1);
    EXPECT_EQ(m_list.itemKey(1), key(1));
    EXPECT_EQ(LvGetSelectedItemKey(&m_list), key(5));
    EXPECT_EQ(m_list.sortColumn(), -1);
    m_list.addItem(key(rows), {QStringLiteral("0")});
    EXPECT_EQ(m_list.itemKey(rows), key(rows));
}

} // namespace
