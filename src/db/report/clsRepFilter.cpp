#include "db/report/clsRepFilter.h"

#include "common/base/clsSystem.h"

#include <algorithm>

namespace
{

QString reversed(QString text)
{
    std::reverse(text.begin(), text.end());
    return text;
}

} // namespace

void clsRepFilter::Init(qint32 nColID, const QString &sOper, const QString &sVal)
{
    m_nColID = nColID;
    m_sOper = sOper;
    m_sVal = sVal;
    m_udRepDispCol.Init(nColID);
}

void clsRepFilter::Init_ParseFilterExpr(qint32 nColID, const QString &sFilterExp)
{
    QString value = clsSystem::StrGetTextTilChar(reversed(sFilterExp), QStringLiteral("["));
    if (value.startsWith(u']'))
        value = reversed(value.mid(1));
    const QString front = clsSystem::StrGetTextTilChar(sFilterExp, QStringLiteral("'"));
    Init(nColID, front.contains(u'#') ? QStringLiteral("#") : QStringLiteral("="), value);
}
