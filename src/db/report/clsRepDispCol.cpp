#include "db/report/clsRepDispCol.h"

#include "common/base/clsSystem.h"
#include "db/TableUse.h"

void clsRepDispCol::Init(qint32 nColID, clsDB::Handle tbRepCols)
{
    const TableUse catalogue(gDB, gDB.ReportColumnsTable(), tbRepCols);
    if (!catalogue)
        return;
    const auto text = [&](const char *field) {
        return gDB.GetRptColField(nColID, QLatin1String(field), clsDB::RptColText,
                                  catalogue.handle());
    };
    const auto number = [&](const char *field) {
        return gDB
            .GetRptColField(nColID, QLatin1String(field), clsDB::RptColLong, catalogue.handle())
            .toInt();
    };
    m_nColID = nColID;
    m_sRptType = text("rpttype");
    m_sPurpose = text("purpose");
    m_sName = text("name");
    m_sFieldname = text("fldname");
    m_sTablename = text("tblname");
    m_sDataType = text("datatype");
    m_sCustomName = text("customname");
    m_nOrder = number("order");
    m_nCatType = number("cattype");
    if (m_sCustomName.isEmpty())
        return;
    const QString custom =
        clsSystem::RemoveLastChar(gDB.GetParamValue(m_sCustomName), QStringLiteral(":"));
    if (!custom.isEmpty())
        m_sName = custom;
}
