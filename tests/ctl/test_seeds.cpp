// What ships beside the program: seeds, demonstration files and samples fit the tables and each
// other.
#include "db/import/clsImportData.h"
#include "db/import/ImportRun.h"
#include "db/Schema.h"
#include "TestPlaces.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace
{

using Row = QHash<QString, QString>;

QString dataFile(const QString &name)
{
    return QStringLiteral(NORVANE_SOURCE_DIR "/data/") + name;
}

QStringList cells(const QString &line)
{
    QStringList values{QString()};
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'"' && quoted && i + 1 < line.size() && line[i + 1] == u'"')
            values.last() += line[i++];
        else if (line[i] == u'"')
            quoted = !quoted;
        else if (line[i] == u',' && !quoted)
            values << QString();
        else
            values.last() += line[i];
    }
    return values;
}

QList<Row> seed(const QString &name)
{
    QFile file(dataFile("seed/" + name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    const QStringList headings = cells(lines.value(0));
    QList<Row> rows;
    for (const QString &line : lines.mid(1)) {
        const QStringList values = cells(line);
        EXPECT_EQ(values.size(), headings.size()) << qPrintable(line);
        Row row;
        for (qsizetype i = 0; i < std::min(values.size(), headings.size()); ++i)
            row.insert(headings[i], values[i]);
        rows << row;
    }
    return rows;
}

bool fitsCodePage(const QString &text)
{
    static const QSet<QChar> high = [] {
        QSet<QChar> all;
        for (const QChar c : QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"))
            all << c;
        return all;
    }();
    return std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 0x80 || (c.unicode() >= 0xA0 && c.unicode() <= 0xFF) ||
               high.contains(c);
    });
}

const norvane::engine::FieldDef *fieldOf(schema::Table table, const QString &name)
{
    const auto &fields = schema::table(table).def.fields;
    for (const auto &field : fields)
        if (name.compare(QLatin1String(field.name.c_str()), Qt::CaseInsensitive) == 0)
            return &field;
    return nullptr;
}

bool hasTag(schema::Table table, const QString &name)
{
    const auto &tags = schema::table(table).def.tags;
    return std::any_of(tags.begin(), tags.end(), [&](const auto &tag) {
        return name.compare(QLatin1String(tag.name.c_str()), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

TEST(Seeds, ListEntriesHaveOneIdentifierEachAndFitTheirField)
{
    QSet<int> ids;
    QSet<QString> texts;
    QHash<int, int> perType;
    QHash<int, QString> byId;
    for (const Row &row : seed("lists.csv")) {
        const int id = row["rowid"].toInt();
        EXPECT_TRUE(id > 0 && id < 1000) << id;
        EXPECT_FALSE(ids.contains(id)) << id;
        ids << id;
        const QString key = row["type"] + row["desc"].toUpper();
        EXPECT_FALSE(texts.contains(key)) << qPrintable(key);
        texts << key;
        EXPECT_TRUE(!row["desc"].trimmed().isEmpty() && row["desc"].size() <= 40);
        EXPECT_TRUE(fitsCodePage(row["desc"])) << qPrintable(row["desc"]);
        ++perType[row["type"].toInt()];
        byId.insert(id, row["type"] + row["desc"]);
    }
    EXPECT_EQ(byId.value(400), "101Open");
    EXPECT_EQ(byId.value(401), "101Closed");
    EXPECT_EQ(byId.value(451), "102Normal");
    EXPECT_EQ(perType.value(3), 51 + 13);
    EXPECT_GE(perType.value(4), 195);
    for (const int type : {1, 102, 103, 104, 105, 106})
        EXPECT_GE(perType.value(type), 4) << type;
}

TEST(Seeds, ReportColumnsNameFieldsAndTagsThatExist)
{
    QSet<int> ids;
    QSet<QString> orders;
    for (const Row &row : seed("columns.csv")) {
        const QString name = row["rowid"] + ' ' + row["name"];
        EXPECT_FALSE(ids.contains(row["rowid"].toInt())) << qPrintable(name);
        ids << row["rowid"].toInt();
        EXPECT_FALSE(orders.contains(row["rpttype"] + row["order"])) << qPrintable(name);
        orders << row["rpttype"] + row["order"];
        const auto table = row["rpttype"] == "C" ? schema::Table::Customer : schema::Table::Issues;
        EXPECT_EQ(row["tblname"], schema::table(table).dataFile());
        EXPECT_FALSE(row["name"].contains(QRegularExpression("['#]"))) << qPrintable(name);
        const QString field = row["fldname"];
        const QString type = row["datatype"];
        EXPECT_EQ(field.isEmpty(), type == "X" || type == "P") << qPrintable(name);
        if (!field.isEmpty()) {
            const auto *def = fieldOf(table, field);
            ASSERT_NE(def, nullptr) << qPrintable(name);
            const char kind = type == "S" ? 'C' : type == "D" ? 'D' : 'N';
            EXPECT_EQ(def->type, kind) << qPrintable(name);
        }
        if (row["purpose"] == "F") {
            EXPECT_TRUE(type == "L" || (type == "P" && row["rpttype"] == "C"));
            EXPECT_GT(row["cattype"].toInt(), 0) << qPrintable(name);
            EXPECT_TRUE(field.isEmpty() || hasTag(table, field)) << qPrintable(name);
        } else {
            EXPECT_EQ(row["purpose"], "D");
        }
        EXPECT_TRUE(row["customname"].isEmpty() ||
                    row["customname"] == row["tblname"] + '_' + field)
            << qPrintable(name);
    }
}

TEST(Seeds, ReportsAreMadeOfColumnsAndListEntriesThatExist)
{
    QHash<QString, Row> columns;
    for (const Row &row : seed("columns.csv"))
        columns.insert(row["rowid"], row);
    QHash<QString, QString> listOf;
    for (const Row &row : seed("lists.csv"))
        listOf.insert(row["rowid"], row["type"]);
    const QList<Row> reports = seed("reports.csv");
    EXPECT_GE(reports.size(), 6);
    for (const Row &report : reports) {
        SCOPED_TRACE(qPrintable(report["title"]));
        EXPECT_TRUE(!report["title"].isEmpty() && report["title"].size() <= 80);
        EXPECT_LT(report["rowid"].toInt(), 1000);
        const QStringList lines = report["def"].split("\\n");
        ASSERT_EQ(lines.size(), 7);
        for (const int flag : {0, 5, 6})
            EXPECT_TRUE(lines[flag] == "0" || lines[flag] == "1");
        for (const QString &id : lines[1].split('~')) {
            EXPECT_EQ(columns.value(id).value("rpttype"), report["type"]);
            EXPECT_EQ(columns.value(id).value("purpose"), "D");
        }
        const QStringList filters = lines[2].split('~', Qt::SkipEmptyParts);
        const QStringList values = lines[4].split('~', Qt::SkipEmptyParts);
        ASSERT_EQ(filters.size(), values.size());
        ASSERT_EQ(filters.size(), lines[3].split('~', Qt::SkipEmptyParts).size());
        for (qsizetype i = 0; i < filters.size(); ++i) {
            EXPECT_EQ(columns.value(filters[i]).value("purpose"), "F");
            EXPECT_EQ(columns.value(filters[i]).value("rpttype"), report["type"]);
            EXPECT_EQ(columns.value(filters[i]).value("cattype"), listOf.value(values[i]));
        }
    }
}

TEST(Seeds, DemoAndSampleFilesPassTheImportCheck)
{
    const QHash<QString, qint32> files{{"demo/customers.csv", 0},
                                       {"demo/categories.csv", 1},
                                       {"demo/products.csv", 2},
                                       {"samples/Sample Customer Import.csv", 0},
                                       {"samples/Sample Lookup List Import.csv", 2}};
    clsImportData data;
    for (auto it = files.begin(); it != files.end(); ++it) {
        SCOPED_TRACE(qPrintable(it.key()));
        const clsImportColDefs columns = ImportRun::columns(it.value());
        QStringList headings;
        QString errors;
        qint32 rows = 0;
        EXPECT_TRUE(data.ValidateCols(dataFile(it.key()), columns, headings, errors));
        EXPECT_TRUE(data.ValidateRows(dataFile(it.key()), columns, headings, errors, rows));
        EXPECT_EQ(errors, QString());
        if (it.key() == "demo/customers.csv")
            EXPECT_GE(rows, 500);
        else
            EXPECT_GE(rows, 3);
    }
}
