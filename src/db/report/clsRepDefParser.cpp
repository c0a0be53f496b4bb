#include "db/report/clsRepDefParser.h"

#include "common/base/clsSystem.h"
#include "common/base/Numbers.h"

namespace
{

constexpr QChar OldDelimiter = QChar(254); // of definitions made long ago; never written
constexpr int Lines = 7;

QString flag(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

std::optional<qint32> identifier(const QString &piece)
{
    const std::optional<double> number = NumberInText(piece);
    return number ? RoundToLong(*number) : std::nullopt;
}

} // namespace

void clsRepDefParser::Init(bool bGroupByFirstCol, bool bLandscape, bool bShowRowNum)
{
    m_sDelimiter = QStringLiteral("~");
    m_RptCols.clear();
    m_RptFilters.clear();
    m_bGroupByFirstCol = bGroupByFirstCol;
    m_bLandscape = bLandscape;
    m_bShowRowNum = bShowRowNum;
}

void clsRepDefParser::InitFromRptDef(const QString &sRptDef)
{
    Init(false, true, false);
    if (sRptDef.contains(OldDelimiter))
        m_sDelimiter = OldDelimiter;
    const QStringList lines = clsSystem::StrParse2Array(sRptDef, QStringLiteral("\n"));
    if (lines.size() < Lines)
        return;
    m_bGroupByFirstCol = lines[0] == u"1";
    m_bShowRowNum = lines[5] == u"1";
    m_bLandscape = lines[6] == u"1";
    readColumns(lines[1]);
    readFilters(lines[2], lines[3], lines[4]);
}

void clsRepDefParser::readColumns(const QString &line)
{
    const QStringList pieces = clsSystem::StrParse2Array(line, m_sDelimiter);
    for (const QString &piece : pieces) {
        if (const auto id = identifier(piece))
            AddDisplayColumn(*id);
    }
}

// Lists of different lengths do not say what belongs together: no criteria then.
void clsRepDefParser::readFilters(const QString &ids, const QString &operators,
                                  const QString &values)
{
    const QStringList columns = clsSystem::StrParse2Array(ids, m_sDelimiter);
    const QStringList opers = clsSystem::StrParse2Array(operators, m_sDelimiter);
    const QStringList vals = clsSystem::StrParse2Array(values, m_sDelimiter);
    if (columns.size() != opers.size() || columns.size() != vals.size())
        return;
    for (qsizetype at = 0; at < columns.size(); ++at) {
        if (const auto id = identifier(columns[at]))
            m_RptFilters.emplace_back().Init(*id, opers[at], vals[at]);
    }
}

void clsRepDefParser::AddDisplayColumn(qint32 nColID)
{
    clsRepDispCol &column = m_RptCols.emplace_back();
    column.Init(nColID);
    column.m_nColID = nColID; // also without a catalogue: a save must not lose it
}

void clsRepDefParser::AddFilter(qint32 nColID, const QString &sFilterExp)
{
    m_RptFilters.emplace_back().Init_ParseFilterExpr(nColID, sFilterExp);
}

QString clsRepDefParser::GetRptDefBuffer() const
{
    QStringList columns, ids, operators, values;
    for (const clsRepDispCol &column : m_RptCols)
        columns.append(QString::number(column.m_nColID));
    for (const clsRepFilter &filter : m_RptFilters) {
        ids.append(QString::number(filter.m_nColID));
        operators.append(filter.m_sOper);
        values.append(filter.m_sVal);
    }
    // A delimiter read is never written: "~" replaces the old one.
    const QChar between = u'~';
    const QStringList lines{flag(m_bGroupByFirstCol), columns.join(between), ids.join(between),
                            operators.join(between),  values.join(between),  flag(m_bShowRowNum),
                            flag(m_bLandscape)};
    return lines.join(u'\n');
}
