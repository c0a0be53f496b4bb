// The definition of a report: what it shows, which rows, and how. Its text, seven lines of
// identifiers and flags, is told in docs/reports.md.
#pragma once

#include "db/report/clsRepDispCol.h"
#include "db/report/clsRepFilter.h"

#include <vector>

class clsRepDefParser
{
public:
    std::vector<clsRepDispCol> m_RptCols;   // in the order of display
    std::vector<clsRepFilter> m_RptFilters; // in the order stored
    bool m_bGroupByFirstCol = false;        // suppress repeating values in the first column
    bool m_bLandscape = true;
    bool m_bShowRowNum = false;

    // Never fails: what of the text makes no sense is left out.
    void InitFromRptDef(const QString &sRptDef);
    void Init(bool bGroupByFirstCol, bool bLandscape, bool bShowRowNum);
    void AddDisplayColumn(qint32 nColID);
    // The expression as the editor shows it (clsRepFilter).
    void AddFilter(qint32 nColID, const QString &sFilterExp);
    QString GetRptDefBuffer() const;

private:
    void readColumns(const QString &line);
    void readFilters(const QString &ids, const QString &operators, const QString &values);

    QString m_sDelimiter = QStringLiteral("~");
};
