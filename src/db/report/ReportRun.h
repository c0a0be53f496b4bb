// Runs the definition of a customer or issue report: which records pass, and what is shown of
// each. Lookup entries, users and customers are read once each, however many rows name them.
#pragma once

#include "db/report/clsRepDefParser.h"
#include "db/report/ReportTable.h"

#include <functional>
#include <optional>

class ReportRun
{
public:
    // `type` is "C" or "I". The definition stays the caller's and unchanged while this lives.
    ReportRun(QString type, const clsRepDefParser &definition);

    // The definition's columns, with the row numbers in front when it asks for them.
    static std::vector<ReportTable::Column> columns(const clsRepDefParser &definition);

    // Called after each record looked at with the number of rows found so far; false ends the run.
    using GoOn = std::function<bool(qint32 found)>;
    // Adds a row for each record that passes to a table with those columns. Nothing, after a
    // message, when a table could not be opened or the type is unknown; else how many rows.
    std::optional<qint32> run(ReportTable &table, const GoOn &goOn);

    // The first criterion that a tag of the table can serve: its field and value. False: none.
    bool GetFilterTag(QString &sTag, qint32 &nFilterVal) const;

private:
    class Tables;
    class Cells;
    class Criteria;

    qint32 walk(Tables &tables, ReportTable &table, const GoOn &goOn) const;

    QString m_type;
    const clsRepDefParser &m_definition;
};
