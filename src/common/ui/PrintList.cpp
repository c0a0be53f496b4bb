// Lists on paper and as text.
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "common/ui/ListView.h"
#include "common/ui/PrintDoor.h"
#include "common/ui/Printing.h"
#include "common/ui/PrintPages.h"
#include "common/ui/PrintProgress.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PrintList)
};

constexpr int kMargin = 1000;
constexpr int kTextWidth = 80; // characters

// As shown; a hidden column has none.
QList<int> columnWidths(const ListView &lv)
{
    QList<int> widths;
    for (int column = 0; column < lv.model()->columnCount(); ++column)
        widths.append(lv.isColumnHidden(column) ? 0 : lv.columnWidth(column));
    return widths;
}

int sum(const QList<int> &widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

QString headingOf(const ListView &lv, int column)
{
    return lv.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

QList<int> selectedRows(const ListView &lv)
{
    QList<int> rows;
    const QModelIndexList selected = lv.selectionModel()->selectedRows();
    for (const QModelIndex &index : selected)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

PrintedTable printed(const ListView &lv, bool selectedOnly = false)
{
    PrintedTable table{.headings = {},
                       .widths = columnWidths(lv),
                       .rows = lv.itemCount(),
                       .text = [&lv](int row, int column) { return lv.itemText(row, column); },
                       .font = lv.font()};
    if (selectedOnly) {
        const QList<int> rows = selectedRows(lv);
        table.rows = static_cast<int>(rows.size());
        table.text = [&lv, rows](int row, int column) { return lv.itemText(rows[row], column); };
    }
    for (int column = 0; column < table.widths.size(); ++column)
        table.headings.append(headingOf(lv, column));
    return table;
}

// One table on one device.
class TablePrinter
{
public:
    TablePrinter(const PrintedTable &table, QPagedPaintDevice &device, const QMarginsF &margins,
                 const QString &title)
        : m_table(table),
          m_pages(device),
          m_margins(margins),
          m_title(title),
          m_font(table.font),
          m_headingFont(bold(table.font))
    {
        placeColumns();
        const qreal usable = m_pages.height() - margins.top() - margins.bottom();
        m_linesOnPage = std::max(1, static_cast<int>(std::floor(usable / m_font.lineHeight())) - 2);
    }

    // False when the person gave up.
    bool run()
    {
        const int rows = m_table.rows;
        const int pages = (rows + m_linesOnPage - 1) / m_linesOnPage;
        PrintProgress progress(pages);
        for (int page = 1; page <= pages; ++page) {
            if (!progress.begins(page)) {
                m_pages.abandon();
                return false;
            }
            if (page > 1)
                m_pages.newPage();
            const int first = (page - 1) * m_linesOnPage;
            onePage(page, first, std::min(first + m_linesOnPage, rows));
        }
        return true;
    }

private:
    struct Column {
        int index;
        qreal left;
        qreal width;
    };

    static QFont bold(QFont font)
    {
        font.setBold(true);
        return font;
    }

    // All shown columns fill the usable width, in the proportions of the screen. A text that takes
    // all of its column still stands apart from the next.
    void placeColumns()
    {
        const qreal between = m_font.width(QStringLiteral("n"));
        const QList<int> &widths = m_table.widths;
        const qreal usable = m_pages.width() - m_margins.left() - m_margins.right();
        const qreal scale = std::max<qreal>(usable, 0) / std::max(1, sum(widths));
        qreal left = m_margins.left();
        for (int index = 0; index < widths.size(); ++index) {
            const qreal width = widths[index] * scale;
            if (width > 0)
                m_columns.append({index, left, std::max(width - between, width / 2)});
            left += width;
        }
    }

    // Line 0 is that of the headings.
    template <class TextOf>
    void rowOfTexts(int line, const PrintFont &font, TextOf &&textOf)
    {
        const qreal y = m_margins.top() + line * m_font.lineHeight();
        for (const Column &column : m_columns)
            m_pages.text(column.left, y, font, font.fitted(textOf(column.index), column.width));
    }

    void onePage(int page, int firstRow, int endRow)
    {
        heading();
        for (int row = firstRow; row < endRow; ++row)
            rowOfTexts(row - firstRow + 1, m_font,
                       [this, row](int column) { return m_table.text(row, column); });
        footer(page);
    }

    void heading()
    {
        if (!m_title.isEmpty()) {
            const QString title = oneLine(m_title);
            const qreal left = (m_pages.width() - m_headingFont.width(title)) / 2;
            m_pages.text(std::max<qreal>(left, 0), m_margins.top() / 4, m_headingFont, title);
        }
        rowOfTexts(0, m_headingFont, [this](int column) { return m_table.headings.value(column); });
        const qreal below = m_margins.top() + m_font.lineHeight();
        m_pages.painter().setPen(QPen(Qt::black, 0)); // as thin as the device has
        m_pages.painter().drawLine(QPointF(m_margins.left(), below),
                                   QPointF(m_pages.width() - m_margins.right(), below));
    }

    // Moved up where a large font would leave the page.
    void footer(int page)
    {
        const qreal lowest = m_pages.height() - m_font.lineHeight();
        const qreal wanted = m_pages.height() - m_margins.bottom() / 4;
        m_pages.text(m_pages.width() / 2, std::min(wanted, lowest), m_font, QString::number(page));
    }

    const PrintedTable &m_table;
    PrintPages m_pages;
    const QMarginsF m_margins;
    const QString m_title;
    const PrintFont m_font;
    const PrintFont m_headingFont;
    QList<Column> m_columns;
    int m_linesOnPage = 1;
};

} // namespace

bool TablePrint(const PrintedTable &table, QPagedPaintDevice &device, int left, int top, int right,
                int bottom, const QString &title)
{
    return guarded("clsSystem_ListViewPrint", false, [&] {
        if (table.rows == 0)
            return true;
        const Hourglass hourglass;
        return TablePrinter(table, device, QMarginsF(left, top, right, bottom), title).run();
    });
}

bool ListViewPrint(const ListView &lv, QPagedPaintDevice &device, int left, int top, int right,
                   int bottom, const QString &title)
{
    return TablePrint(printed(lv), device, left, top, right, bottom, title);
}

void ListViewPrint_GetPrinter(const ListView &lv, const QString &title, const QString &titleKey)
{
    if (lv.itemCount() == 0) {
        prompts::inform(Words::tr("The list is empty. There is nothing to print."));
        return;
    }
    const std::optional<printing::ListOptions> chosen = printing::listOptions(
        {.title = title, .titleKey = titleKey, .rowSelected = LvIsItemSelected(&lv)});
    if (!chosen)
        return;
    const QString name =
        chosen->dateStamp ? chosen->title + u" - " + clsSystem::CurrDateTimeShort() : chosen->title;
    printing::preview({.name = name,
                       .draw =
                           [&lv, name, only = chosen->selectedOnly](QPagedPaintDevice &device) {
                               return TablePrint(printed(lv, only), device, kMargin, kMargin,
                                                 kMargin, kMargin, name);
                           },
                       .orientation = chosen->orientation});
}

QString LVContent(const ListView &lv)
{
    const QList<int> widths = columnWidths(lv);
    const int all = std::max(1, sum(widths));
    const auto lineOf = [&](const auto &textOf) {
        QString line;
        for (int column = 0; column < widths.size(); ++column) {
            const int characters = widths[column] * kTextWidth / all;
            if (characters > 0)
                line += clsSystem::PadOrTruncate(oneLine(textOf(column)), characters);
        }
        return line;
    };
    const QString headings = lineOf([&lv](int column) { return headingOf(lv, column); });
    QString text = headings + QLatin1String("\n\n") + QString(headings.size(), u'-') + u'\n';
    for (int row = 0; row < lv.itemCount(); ++row)
        text += lineOf([&lv, row](int column) { return lv.itemText(row, column); }) + u'\n';
    return text;
}
