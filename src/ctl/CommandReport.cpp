#include "common/base/clsSystem.h"
#include "common/base/WholeFile.h"
#include "ctl/DatabaseFolder.h"
#include "ctl/TableDump.h"
#include "db/report/ReportRun.h"
#include "db/TableUse.h"

namespace ctl
{

namespace
{

const QString OutOption = QStringLiteral("--out");

// The report by its identifier, else by its title without regard to case; 0 when there is none.
qint32 wantedReport(const QString &idOrTitle)
{
    TableUse reports(gDB, gDB.ReportTable());
    if (!reports)
        return 0;
    bool isNumber = false;
    const qint32 id = idOrTitle.toInt(&isNumber);
    reports.select(QStringLiteral("rowid"));
    if (isNumber && reports.seek(id))
        return id;
    reports.select(QStringLiteral("title"));
    for (bool more = reports.top(); more; more = reports.next())
        if (reports.text(QStringLiteral("title")).compare(idOrTitle, Qt::CaseInsensitive) == 0)
            return reports.number(QStringLiteral("rowid"));
    return 0;
}

QString csvLine(QStringList cells)
{
    for (QString &cell : cells)
        cell = csvText(cell);
    return cells.join(u',') + u'\n';
}

QString asCsv(const ReportTable &table)
{
    QStringList headings;
    for (const ReportTable::Column &column : table.columns)
        headings.append(clsSystem::RemoveLastChar(column.heading, QStringLiteral(":")));
    QString text = csvLine(headings);
    for (const ReportTable::Row &row : table.rows)
        text += csvLine(row.cells);
    return text;
}

// The columns of a definition are looked up in the program's own database.
class Opened
{
public:
    explicit Opened(const QString &dir) : m_open(gDB.OpenForReading(dir)) {}
    ~Opened() { gDB.CloseDB(); }
    Opened(const Opened &) = delete;
    Opened &operator=(const Opened &) = delete;
    explicit operator bool() const { return m_open; }

private:
    bool m_open;
};

int run(const Arguments &arguments, Console &console)
{
    const QString dir = arguments.words.at(0);
    if (!folderIsThere(dir, console))
        return Problem;
    const Opened opened(dir);
    if (!opened)
        return Problem;
    const qint32 id = wantedReport(arguments.words.at(1));
    if (id < 1) {
        console.err << QStringLiteral("There is no report '%1'.\n").arg(arguments.words.at(1));
        return Problem;
    }
    RecColl record(gDB.ReportTable(), schema::table(schema::Table::Report).dataFile(), id,
                   QStringLiteral("_rptdef"));
    if (!gDB.ReadRecord(record))
        return Problem;
    clsRepDefParser definition;
    definition.InitFromRptDef(record.text(QStringLiteral("def")));
    if (definition.m_RptCols.empty()) {
        console.err << "Report definition does not specify any columns to display!\n";
        return Problem;
    }
    ReportTable table;
    table.columns = ReportRun::columns(definition);
    ReportRun reportRun(record.text(QStringLiteral("type")), definition);
    if (!reportRun.run(table, [](qint32) { return true; }))
        return Problem;
    table.deliver(definition.m_bGroupByFirstCol);
    const QString text = asCsv(table);
    if (arguments.has(OutOption))
        return writeWhole(arguments.values.value(OutOption), text.toUtf8()) ? Done : Problem;
    console.out << text;
    console.out.flush();
    return console.out.status() == QTextStream::Ok ? Done : Problem;
}

} // namespace

Command reportCommand()
{
    return {QStringLiteral("report"),
            {QStringLiteral("DIR"), QStringLiteral("ID-OR-TITLE")},
            {{OutOption, QStringLiteral("FILE"),
              QStringLiteral("write to this file instead of standard output")}},
            QStringLiteral("Run a report and write its rows as comma-separated values"),
            QStringLiteral("The report is named by its identifier or its title; "
                           "'norvanectl dump DIR reports' lists\nthem. Rows come in the order of "
                           "the first column, with a heading row in front."),
            run};
}

} // namespace ctl
