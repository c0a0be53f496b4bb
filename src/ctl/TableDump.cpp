#include "ctl/TableDump.h"

#include "db/FieldText.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace ctl
{

using namespace norvane::engine;

namespace
{

struct Column {
    Handle field = 0;
    QString name;
    char type = 'C';
};

struct RowPlace {
    qint32 rowid;
    std::uint32_t record;
};

std::vector<Column> columnsOf(Handle table)
{
    std::vector<Column> columns;
    for (int position = 1; position <= d4numFields(table); ++position) {
        const Handle field = d4fieldAt(table, position);
        columns.push_back({field, FieldNameText(field).trimmed().toLower(), f4type(field)});
    }
    return columns;
}

// 0 when the table has none; asking the engine for it by name would count as a failure.
Handle rowidField(const std::vector<Column> &columns)
{
    for (const Column &column : columns)
        if (column.name == u"rowid")
            return column.field;
    return 0;
}

// False when the walk ended before the last row.
bool findRows(Handle table, const std::vector<Column> &columns, std::vector<RowPlace> &places)
{
    const Handle rowid = rowidField(columns);
    d4tagSelect(table, 0);
    Code code = d4top(table);
    for (; code == r4success; code = d4skip(table, 1))
        if (!d4deleted(table))
            places.push_back({rowid == 0 ? 0 : f4long(rowid), d4recNo(table)});
    std::stable_sort(places.begin(), places.end(),
                     [](const RowPlace &a, const RowPlace &b) { return a.rowid < b.rowid; });
    return code == r4eof;
}

bool isNumber(const Column &column)
{
    return column.type == 'N' || column.type == 'F' || column.type == 'I';
}

QString numberText(Handle field)
{
    if (f4decimals(field) == 0)
        return QString::number(f4long(field));
    return QString::number(f4double(field), 'g', QLocale::FloatingPointShortest);
}

QString fieldText(Handle field)
{
    QString text = FieldText(field);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

// Nothing when the row points to a memo that cannot be read.
std::optional<QString> wholeMemo(Handle field)
{
    const std::uint32_t length = f4memoLenVB(field); // says what is wrong with one
    const char *memo = f4memoPtr(field);
    if (memo != nullptr)
        return fromStored(memo, length);
    const QString block = FieldText(field).trimmed();
    if (block.isEmpty() || block.toLongLong() == 0)
        return QString();
    return std::nullopt;
}

// The current row's values; one that cannot be read is empty and makes `whole` false.
QStringList valuesOf(const std::vector<Column> &columns, bool &whole, Console &console)
{
    QStringList values;
    for (const Column &column : columns) {
        if (isNumber(column)) {
            values << numberText(column.field);
        } else if (column.type != 'M') {
            values << fieldText(column.field);
        } else if (const std::optional<QString> memo = wholeMemo(column.field)) {
            values << *memo;
        } else {
            values << QString();
            whole = false;
            console.err << QStringLiteral(
                               "The memo '%1' of the row with the %2 %3 cannot be read.\n")
                               .arg(column.name, columns.front().name, values.value(0));
        }
    }
    return values;
}

QString jsonRow(const std::vector<Column> &columns, const QStringList &values)
{
    QStringList pairs;
    for (qsizetype i = 0; i < values.size(); ++i) {
        const Column &column = columns[static_cast<std::size_t>(i)];
        const QString value = isNumber(column) ? values[i] : jsonText(values[i]);
        pairs << jsonText(column.name) + u':' + value;
    }
    return u'{' + pairs.join(u',') + u'}';
}

QString csvRow(const QStringList &values)
{
    QStringList quoted;
    for (const QString &value : values)
        quoted << csvText(value);
    return quoted.join(u',');
}

QStringList namesOf(const std::vector<Column> &columns)
{
    QStringList names;
    for (const Column &column : columns)
        names << column.name;
    return names;
}

} // namespace

QString jsonText(const QString &text)
{
    QString quoted;
    quoted.reserve(text.size() + 2);
    quoted += u'"';
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code == u'"' || code == u'\\')
            quoted += QString(u'\\') + character;
        else if (code == u'\n')
            quoted += QLatin1String("\\n");
        else if (code == u'\r')
            quoted += QLatin1String("\\r");
        else if (code == u'\t')
            quoted += QLatin1String("\\t");
        else if (code < 0x20)
            quoted += QStringLiteral("\\u%1").arg(int(code), 4, 16, QLatin1Char('0'));
        else
            quoted += character;
    }
    quoted += u'"';
    return quoted;
}

QString csvText(const QString &text)
{
    const bool plain = std::none_of(text.begin(), text.end(), [](QChar character) {
        return character == u',' || character == u'"' || character == u'\n' || character == u'\r';
    });
    if (plain)
        return text;
    QString doubled = text;
    doubled.replace(u'"', QLatin1String("\"\""));
    return u'"' + doubled + u'"';
}

bool dumpTable(Handle table, RowFormat format, Console &console)
{
    const std::vector<Column> columns = columnsOf(table);
    std::vector<RowPlace> places;
    bool whole = findRows(table, columns, places);
    if (format == RowFormat::Csv)
        console.out << csvRow(namesOf(columns)) << '\n';
    for (const RowPlace &place : places) {
        if (d4go(table, place.record) != r4success) {
            whole = false;
            continue;
        }
        // Another station may have deleted it since.
        if (d4deleted(table))
            continue;
        const QStringList values = valuesOf(columns, whole, console);
        console.out << (format == RowFormat::Csv ? csvRow(values) : jsonRow(columns, values))
                    << '\n';
    }
    console.out.flush();
    return whole && console.out.status() == QTextStream::Ok;
}

} // namespace ctl
