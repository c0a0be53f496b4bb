// Reports: the catalogue of their columns, and copies of their definitions.
#include "db/clsDB.h"

#include "common/base/Failure.h"
#include "common/base/Hourglass.h"
#include "db/report/clsRepDispCol.h"
#include "db/TableUse.h"

namespace
{

const QString RowidTag = QStringLiteral("rowid");

} // namespace

QString clsDB::GetRptColField(qint32 nColID, const QString &sFieldname, int udDataType,
                              Handle tbRepCols)
{
    return guarded("clsDB_GetRptColField", QString(), [&] {
        TableUse rows(*this, ReportColumnsTable(), tbRepCols);
        if (!rows)
            return QString();
        rows.select(RowidTag);
        if (!rows.seek(nColID))
            return QString();
        if (udDataType == RptColText)
            return rows.text(sFieldname);
        return udDataType == RptColLong ? QString::number(rows.number(sFieldname)) : QString();
    });
}

QString clsDB::RptColumnName(qint32 nColID)
{
    return GetRptColField(nColID, QStringLiteral("name"), RptColText, -1);
}

void clsDB::LBLoadRptColumns(ListSink &lb, const QString &sRptType, const QString &sColPurpose)
{
    guarded("clsDB_LBLoadRptColumns", [&] {
        const Hourglass wait;
        lb.clear();
        TableUse rows(*this, ReportColumnsTable());
        if (!rows)
            return;
        // Looking a column up moves the table, so the identifiers come first.
        std::vector<qint32> ids;
        rows.select(QStringLiteral("order"));
        for (bool more = rows.top(); more; more = rows.next())
            ids.push_back(rows.number(RowidTag));
        for (const qint32 id : ids) {
            clsRepDispCol column;
            column.Init(id, rows.handle());
            if (column.m_sRptType == sRptType && column.m_sPurpose == sColPurpose)
                lb.addItem(clsSystem::RemoveLastChar(column.m_sName, QStringLiteral(":")), id);
        }
    });
}

qint32 clsDB::RptFilterGetCatType(qint32 nColID)
{
    return guarded("clsDB_RptFilterGetCatType", 0, [&] {
        const Hourglass wait;
        TableUse rows(*this, ReportColumnsTable());
        if (!rows)
            return 0;
        rows.select(RowidTag);
        return rows.seek(nColID) ? rows.number(QStringLiteral("cattype")) : 0;
    });
}

qint32 clsDB::CopyReport(qint32 nRptID)
{
    return guarded("clsDB_CopyReport", -1, [&] {
        const schema::TableInfo &table = schema::table(schema::Table::Report);
        RecColl original(ReportTable(), table.dataFile(), nRptID, QStringLiteral("_rptdef"));
        if (!ReadRecord(original))
            return -1;
        RecColl copy(ReportTable(), table.dataFile(), -1, QStringLiteral("_rptdef"));
        copy.add(QStringLiteral("title"),
                 QString(u"Copy of " % original.text(QStringLiteral("title"))));
        for (const char *field : {"type", "def", "notes"})
            copy.add(QLatin1String(field), original.value(QLatin1String(field)));
        return SaveRecord(copy) ? copy.number(QStringLiteral("_rowid")) : -1;
    });
}
