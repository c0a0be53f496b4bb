#include "db/report/ReportTable.h"

#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "common/base/Numbers.h"

#include <QCollator>
#include <QHash>

#include <algorithm>

namespace
{

// Sorts by what `keyOf` makes of a cell; each distinct text is looked at once.
template <class Key, class KeyOf>
void sortByKey(std::vector<ReportTable::Row> &rows, std::size_t column, KeyOf keyOf)
{
    struct Place {
        const Key *key;
        std::size_t row;
    };
    QHash<QString, std::size_t> known;
    std::vector<Key> keys;
    std::vector<std::size_t> keyOfRow;
    keyOfRow.reserve(rows.size());
    for (const ReportTable::Row &row : rows) {
        const QString text = row.cells.value(static_cast<qsizetype>(column));
        auto at = known.constFind(text);
        if (at == known.constEnd()) {
            at = known.insert(text, keys.size());
            keys.push_back(keyOf(text));
        }
        keyOfRow.push_back(*at);
    }
    std::vector<Place> order;
    order.reserve(rows.size());
    for (std::size_t row = 0; row < rows.size(); ++row)
        order.push_back({&keys[keyOfRow[row]], row});
    std::stable_sort(order.begin(), order.end(), [](const Place &a, const Place &b) {
        return a.key != b.key && *a.key < *b.key;
    });
    std::vector<ReportTable::Row> sorted;
    sorted.reserve(rows.size());
    for (const Place &place : order)
        sorted.push_back(std::move(rows[place.row]));
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
        sortByKey<double>(rows, column,
                          [](const QString &text) { return NumberInText(text).value_or(0); });
    } else if (type == u"D") {
        sortByKey<QDate>(rows, column, clsSystem::Str2Date);
    } else {
        QCollator collator(host().locale());
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        sortByKey<QCollatorSortKey>(
            rows, column, [&collator](const QString &text) { return collator.sortKey(text); });
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
