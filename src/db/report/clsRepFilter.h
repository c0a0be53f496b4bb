// One criterion of a report: a column is, or is not, an entry of its lookup list.
#pragma once

#include "db/report/clsRepDispCol.h"

class clsRepFilter
{
public:
    qint32 m_nColID = -1;
    QString m_sOper; // "=" or "#" (is not)
    QString m_sVal;  // the entry's rowid in decimal
    clsRepDispCol m_udRepDispCol;

    void Reset() { *this = {}; }
    void Init(qint32 nColID, const QString &sOper, const QString &sVal);
    // Takes operator and value out of what the editor shows: Status # 'Closed' [17]. A "#" in the
    // column's label makes the criterion an IS NOT one.
    void Init_ParseFilterExpr(qint32 nColID, const QString &sFilterExp);
};
