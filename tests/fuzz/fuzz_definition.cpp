// The text of a report's definition: read with the catalogue of columns, written, read again; and
// the same bytes as a criterion that the editor shows.
#include "common/base/clsSystem.h"
#include "common/base/Prompts.h"
#include "db/clsDB.h"
#include "db/engine/TableCreate.h"
#include "db/FieldText.h"
#include "db/report/clsRepDefParser.h"
#include "Exercise.h"

#include <QCoreApplication>

#include <algorithm>

using norvane::fuzz::require;
using norvane::fuzz::SmallDisk;

namespace
{

// Each column is looked up in the catalogue, so a longer text shows no more and takes longer.
constexpr std::size_t kMostText = 512;

void text(norvane::engine::Handle table, const char *field, const char *value)
{
    norvane::engine::f4assignNVB(norvane::engine::d4field(table, field), value,
                                 static_cast<std::uint32_t>(std::string_view(value).size()));
}

void makeCatalogue(SmallDisk &disk)
{
    using namespace norvane::engine;
    const std::string path = clsSystem::LocalPath(gDB.ReportColumnsTable()).toStdString();
    const std::string stem = path.substr(0, path.size() - 4);
    require(createTable(disk, schema::reportColumnsDef(), {path, stem + ".cdx", ""}).ok(),
            "there is no catalogue");
    const Handle session = d4init_v(&disk);
    const Handle table = d4open(session, path);
    for (int id = 1; id <= 9; ++id) {
        d4appendStartVB(table, 0);
        d4blank(table);
        f4assignLong(d4field(table, "rowid"), id);
        text(table, "rpttype", "C");
        text(table, "purpose", id < 7 ? "D" : "F");
        text(table, "name", id % 2 ? "Company:" : "");
        text(table, "datatype", "L");
        f4assignLong(d4field(table, "cattype"), id);
        d4append(table);
        d4unlock(table);
    }
    d4initUndo(session);
}

QStringList parts(const clsRepDefParser &definition)
{
    QStringList all;
    for (const clsRepDispCol &column : definition.m_RptCols)
        all.append(QString::number(column.m_nColID) % u' ' % column.m_sName);
    for (const clsRepFilter &filter : definition.m_RptFilters)
        all.append(QString::number(filter.m_nColID) % filter.m_sOper % filter.m_sVal);
    return all;
}

// A delimiter inside a piece, which only definitions with the old one can have, cuts it on writing.
bool canBeWritten(const clsRepDefParser &definition)
{
    return std::none_of(definition.m_RptFilters.begin(), definition.m_RptFilters.end(),
                        [](const clsRepFilter &filter) {
                            return filter.m_sOper.contains(u'~') || filter.m_sVal.contains(u'~');
                        });
}

void readAndWrite(const QString &input)
{
    clsRepDefParser definition;
    definition.InitFromRptDef(input);
    const QString written = definition.GetRptDefBuffer();
    require(written.count(u'\n') == 6, "a definition has seven lines");
    require(!written.contains(QChar(254)), "the old delimiter is written");
    if (!canBeWritten(definition))
        return;
    clsRepDefParser again;
    again.InitFromRptDef(written);
    require(parts(again) == parts(definition), "columns or criteria are others when read again");
    require(again.GetRptDefBuffer() == written, "a definition changes with each save");
}

void readCriterion(const QString &input)
{
    clsRepFilter filter;
    filter.Init_ParseFilterExpr(7, input);
    require(filter.m_sOper == u"=" || filter.m_sOper == u"#", "a criterion without its operator");
    require(filter.m_nColID == 7 && filter.m_udRepDispCol.m_nCatType == 7,
            "a criterion without its column");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    prompts::backend().message = [](const prompts::Message &) -> prompts::Answer {
        require(false, "a definition is read with a message box");
        return prompts::Answer::Ok;
    };
    static auto *disk = new SmallDisk; // gDB holds it until the very end
    makeCatalogue(*disk);
    gDB.useFiles(disk);
    require(gDB.OpenForReading(QStringLiteral("/")), "there is no session");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > kMostText)
        return -1;
    const QString input =
        fromStored(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    readAndWrite(input);
    readCriterion(input);
    return 0;
}
