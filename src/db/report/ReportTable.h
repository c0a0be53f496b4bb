// What a report found, as it is shown: headings, rows of texts, and the record behind each row.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class ReportTable
{
public:
    static constexpr qint32 RowNumberColumn = -1000;

    struct Column {
        QString heading;
        QString dataType; // "I" and "D" sort by their values, all others as text
        qint32 id = -1;   // of the catalogue, or RowNumberColumn
    };
    struct Row {
        qint32 rowid = 0;  // of the record
        QStringList cells; // may end early: the rest is empty
    };

    std::vector<Column> columns;
    std::vector<Row> rows;

    QString cell(std::size_t row, std::size_t column) const;
    // The column that a report is delivered in the order of: the first but for the row numbers.
    std::size_t firstDataColumn() const;
    // In the order of its first data column, numbered, and with the cells of that column that
    // repeat the one above emptied when asked to (not in a table of one column).
    void deliver(bool suppressRepeats);
    // Ascending; equal cells stay in the order they had.
    void sortBy(std::size_t column);
    // 1, 2, 3 ... in the order of the rows; nothing without that column.
    void numberRows();
    // Empties each cell that repeats the one above it. The rows cannot be sorted any more then.
    void elimRepeatingValues(std::size_t column);
};
