#include "reports/PaperColumns.h"

#include "db/report/ReportTable.h"

#include <QFont>
#include <QFontMetrics>

#include <algorithm>
#include <numeric>

namespace
{

constexpr int kStep = 4;                // pixels by which a column gives way
constexpr int kFewestSteps = 8;         // of a column
constexpr std::size_t kMeasured = 2000; // rows, spread over all

class PaperColumn
{
public:
    PaperColumn(const ReportTable &table, std::size_t column, const QFont &font, int width)
        : m_steps(width / kStep), m_needing(static_cast<std::size_t>(m_steps) + 1)
    {
        const int between = betweenColumns(font);
        const auto count = [&](const QString &text, const QFontMetrics &metrics, int weight) {
            const int needed = (metrics.horizontalAdvance(text) + between + kStep - 1) / kStep;
            m_needing[static_cast<std::size_t>(std::min(needed, m_steps))] += weight;
        };
        const QFontMetrics metrics(font);
        const std::size_t every = table.rows.size() / kMeasured + 1;
        for (std::size_t row = 0; row < table.rows.size(); row += every)
            count(table.cell(row, column), metrics, 1);
        QFont bold = font;
        bold.setBold(true);
        count(table.columns[column].heading, QFontMetrics(bold),
              static_cast<int>(table.rows.size() / every / 2) + 1);
        m_cut = m_needing.back();
    }

    int width() const { return m_steps * kStep; }
    bool canGiveWay() const { return m_steps > kFewestSteps; }
    // All texts that filled it lose a piece when it gives way: the harder to bear, the shorter they
    // are, as half a telephone number is none.
    double loss() const { return double(m_cut) / (m_steps * m_steps); }
    void giveWay() { m_cut += m_needing[static_cast<std::size_t>(--m_steps)]; }

private:
    int m_steps;
    std::vector<int> m_needing; // texts by the steps they take
    int m_cut = 0;
};

} // namespace

int betweenColumns(const QFont &font)
{
    return 2 * QFontMetrics(font).averageCharWidth();
}

QList<int> paperWidths(const ReportTable &table, const QFont &font, const QList<int> &widths,
                       int room)
{
    int left = std::accumulate(widths.begin(), widths.end(), 0) - room;
    if (left <= 0)
        return widths;
    std::vector<PaperColumn> columns;
    for (const int width : widths)
        columns.emplace_back(table, columns.size(), font, width);
    for (; left > 0; left -= kStep) {
        const auto next = std::min_element(
            columns.begin(), columns.end(), [](const PaperColumn &a, const PaperColumn &b) {
                if (a.canGiveWay() != b.canGiveWay())
                    return a.canGiveWay();
                return a.loss() < b.loss() || (a.loss() <= b.loss() && a.width() > b.width());
            });
        if (!next->canGiveWay())
            break;
        next->giveWay();
    }
    QList<int> fitted;
    for (const PaperColumn &column : columns)
        fitted.append(column.width());
    return fitted;
}
