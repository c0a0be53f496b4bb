// One column of the report column catalogue: what a report can show or test.
#pragma once

#include "db/clsDB.h"

#include <QString>

class clsRepDispCol
{
public:
    qint32 m_nColID = -1;
    QString m_sRptType;     // "C" customers, "I" issues
    QString m_sPurpose;     // "D" to display, "F" to filter on
    QString m_sName;        // the label; the custom one when the database has it
    QString m_sFieldname;   // may be empty (type "X")
    QString m_sTablename;   // file name of the table
    QString m_sDataType;    // docs/reports.md, "Kinds of values"
    QString m_sCustomName;  // the parameter that may hold a custom label
    qint32 m_nOrder = -1;   // place in pick lists
    qint32 m_nCatType = -1; // a filter's lookup list

    void Reset() { *this = {}; }
    // From the catalogue's row, through the caller's open catalogue or one opened here. A row that
    // is not there leaves the texts empty; a catalogue that cannot be opened leaves all as it is.
    void Init(qint32 nColID, clsDB::Handle tbRepCols = 0);
};
