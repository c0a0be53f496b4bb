#include "db/report/ReportTable.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <numeric>

namespace
{

// Gives each distinct text of a column a number, from 0 in the order they come. Cells that name the
// same record mostly share one text, which is then known by where it lies.
class DistinctTexts
{
public:
    std::size_t numberOf(const QString &text)
    {
        const auto same = m_byPlace.constFind(text.constData());
        if (same != m_byPlace.constEnd())
            return *same;
        auto equal = m_byText.constFind(text);
        if (equal == m_byText.constEnd()) {
            equal = m_byText.insert(text, m_texts.size());
            m_texts.push_back(text);
        }
        m_byPlace.insert(text.constData(), *equal);
        return *equal;
    }
    const std::vector<QString> &texts() const { return m_texts; }

private:
    QHash<const QChar *, std::size_t> m_byPlace;
    QHash<QString, std::size_t> m_byText;
    std::vector<QString> m_texts;
};

// The place of each text in the order of what `keyOf` makes of it; equal keys have the same place.
template <class KeyOf>
std::vector<std::size_t> placesOf(const std::vector<QString> &texts, KeyOf keyOf)
{
    std::vector<decltype(keyOf(QString()))> keys;
    keys.reserve(texts.size());
    for (const QString &text : texts)
        keys.push_back(keyOf(text));
    std::vector<std::size_t> order(texts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    std::vector<std::size_t> places(texts.size());
    for (std::size_t at = 1; at < order.size(); ++at)
        places[order[at]] = places[order[at - 1]] + (keys[order[at - 1]] < keys[order[at]] ? 1 : 0);
    return places;
}

// Stable. Each distinct text is looked at once, and the rows are put down by counting.
template <class KeyOf>
void sortByKey(std::vector<ReportTable::Row> &rows, std::size_t column, KeyOf keyOf)
{
    DistinctTexts distinct;
    std::vector<std::size_t> placeOfRow;
    placeOfRow.reserve(rows.size());
    const QString none;
    for (const ReportTable::Row &row : rows) {
        const bool has = column < static_cast<std::size_t>(row.cells.size());
        placeOfRow.push_back(
            distinct.numberOf(has ? row.cells[static_cast<qsizetype>(column)] : none));
    }
    const std::vector<std::size_t> places = placesOf(distinct.texts(), keyOf);
    std::vector<std::size_t> start(places.size() + 1);
    for (std::size_t &place : placeOfRow) {
        place = places[place];
        ++start[place + 1];
    }
    std::partial_sum(start.begin(), start.end(), start.begin());
    std::vector<ReportTable::Row> sorted(rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row)
        sorted[start[placeOfRow[row]]++] = std::move(rows[row]);
    rows = std::move(sorted);
}

} // namespace

QString ReportTable::cell(std::size_t row, std::size_t column) const
{
    return row < rows.size() ? rows[row].cells.value(static_cast<qsizetype>(column)) : QString();
}

std::size_t ReportTable::firstDataColumn() const
{
    return !columns.empty() && columns.front().id == RowNumberColumn ? 1 : 0;
}

void ReportTable::deliver(bool suppressRepeats)
{
    sortBy(firstDataColumn());
    numberRows();
    if (suppressRepeats && columns.size() > 1)
        elimRepeatingValues(firstDataColumn());
}

void ReportTable::sortBy(std::size_t column)
{
    if (column >= columns.size())
        return;
    const QString &type = columns[column].dataType;
    if (type == u"I") {
        sortByKey(rows, column, [](const QString &text) { return NumberInText(text).value_or(0); });
    } else if (type == u"D") {
        sortByKey(rows, column, clsSystem::Str2Date);
    } else {
        QCollator collator(host().locale());
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        sortByKey(rows, column,
                  [&collator](const QString &text) { return collator.sortKey(text); });
    }
}

void ReportTable::numberRows()
{
    if (firstDataColumn() == 0)
        return;
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row].cells[0] = QString::number(row + 1);
}

void ReportTable::elimRepeatingValues(std::size_t column)
{
    QString remembered;
    const auto at = static_cast<qsizetype>(column);
    for (Row &row : rows) {
        if (at >= row.cells.size())
            continue;
        if (row.cells[at] == remembered)
            row.cells[at].clear();
        else
            remembered = row.cells[at];
    }
}
