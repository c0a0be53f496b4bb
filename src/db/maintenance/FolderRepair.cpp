#include "db/maintenance/FolderRepair.h"

#include "db/clsDB.h"
#include "db/FieldText.h"
#include "db/maintenance/Advice.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <limits>

using namespace norvane::engine;

namespace maintenance
{

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FolderRepair)
};

constexpr qint32 FirstIdentifier = 1000;
constexpr int MostLinesOfAFile = 8;

bool isIndex(const schema::TableInfo &table, const QString &file)
{
    return file == table.indexFile();
}

} // namespace

const QList<RepairStep> &FolderRepair::run()
{
    for (const schema::TableInfo &table : schema::tables())
        restoreFiles(table);
    m_files.lookAgain();
    for (const schema::TableInfo &table : schema::tables())
        repairTable(table);
    m_files.lookAgain();
    repairCounters();
    return m_steps;
}

void FolderRepair::add(const QString &file, const QString &text, bool mended)
{
    m_steps.append({file, text, mended});
}

// The newer tables may be missing altogether from an older database. An index comes from the rows
// and not from here; the rest only a backup has.
void FolderRepair::restoreFiles(const schema::TableInfo &table)
{
    const QStringList files = table.files();
    const bool none = std::all_of(files.begin(), files.end(), [this](const QString &file) {
        return m_files.pathOf(file).isEmpty();
    });
    for (qsizetype i = 0; i < files.size(); ++i) {
        const QString &file = files.at(i);
        if (!m_files.pathOf(file).isEmpty() || (isIndex(table, file) && !none))
            continue;
        const bool made =
            table.repairable && none &&
            clsDB::copyTemplate(table.templateFiles().at(i), m_files.folder(), file) &&
            clsDB::keepNames(m_files.folder());
        add(file,
            made ? Words::tr("the file was missing and is there again, empty")
                 : Words::tr("the file is missing"),
            made);
    }
}

void FolderRepair::repairTable(const schema::TableInfo &table)
{
    const QStringList files = table.files();
    const bool possible = std::none_of(files.begin(), files.end(), [&](const QString &file) {
        return !isIndex(table, file) && m_files.pathOf(file).isEmpty();
    });
    if (!possible)
        return; // said already
    std::vector<RepairLine> lines;
    const std::string path = m_files.pathOf(table.dataFile()).toStdString();
    const Code code = d4repair(m_files.session(), path, lines);
    QHash<QString, int> left;
    for (const RepairLine &line : lines) {
        const ExplainedLine explained = explainLine(QString::fromStdString(line.text), table);
        const QString named = fileName(line.file);
        const QString file = named.endsWith(u".dbf", Qt::CaseInsensitive) ? explained.file : named;
        if (line.mended || ++left[file] <= MostLinesOfAFile)
            add(file, explained.text, line.mended);
    }
    for (auto it = left.cbegin(); it != left.cend(); ++it)
        if (it.value() > MostLinesOfAFile)
            add(it.key(), Words::tr("%1 more lines like these").arg(it.value() - MostLinesOfAFile),
                false);
    if (code == d4locked)
        add(table.dataFile(), Words::tr("it is open at another station, so it was left as it is"),
            false);
    else if (code != r4success && left.isEmpty()) {
        const Error &error = lastError(m_files.session());
        const QString named = fileName(error.file);
        add(named.isEmpty() ? table.dataFile() : named, failureText(error), false);
    }
}

// Of deleted rows too: a number is never given twice.
qint32 FolderRepair::highestIdentifier(const schema::TableInfo &table)
{
    const Handle handle = d4open(m_files.session(), m_files.pathOf(table.dataFile()).toStdString());
    const Handle rowid = handle > 0 ? d4field(handle, "rowid") : 0;
    qint32 highest = 0;
    if (rowid > 0) {
        d4tagSelect(handle, 0);
        for (Code code = d4top(handle); code == r4success; code = d4skip(handle, 1))
            highest = std::max(highest, f4long(rowid));
    }
    d4close(handle);
    return highest;
}

void FolderRepair::repairCounters()
{
    const schema::TableInfo &counterTable = schema::table(schema::Table::LastID);
    if (!m_files.has(counterTable))
        return;
    const Handle counters =
        d4open(m_files.session(), m_files.pathOf(counterTable.dataFile()).toStdString());
    if (counters < 1)
        return; // told by the repair of the table
    for (const schema::TableInfo &table : schema::tables()) {
        const bool counted =
            table.table != schema::Table::LastID && table.table != schema::Table::Param;
        if (counted && m_files.has(table))
            repairCounter(table, counters);
    }
    d4close(counters);
}

// One counter for each table, above all its rows. The first one found is kept, as it is the one
// that a seek finds.
void FolderRepair::repairCounter(const schema::TableInfo &table, Handle counters)
{
    const QString file = schema::table(schema::Table::LastID).dataFile();
    const Handle name = d4field(counters, "tblname");
    const Handle next = d4field(counters, "lastid");
    if (name < 1 || next < 1)
        return;
    const qint32 highest = highestIdentifier(table);
    if (highest == std::numeric_limits<qint32>::max()) {
        add(table.dataFile(), Words::tr("a row has the highest rowid there can be"), false);
        return;
    }
    QList<std::uint32_t> found;
    qint32 most = std::max(FirstIdentifier, highest + 1);
    bool wrong = false;
    d4tagSelect(counters, 0);
    for (Code code = d4top(counters); code == r4success; code = d4skip(counters, 1)) {
        if (d4deleted(counters) ||
            FieldText(name).trimmed().compare(table.dataFile(), Qt::CaseInsensitive) != 0)
            continue;
        found << d4recNo(counters);
        wrong = wrong || f4long(next) < most || found.size() > 1;
        most = std::max(most, f4long(next));
    }
    for (qsizetype i = 0; wrong && i < found.size(); ++i) {
        bool stored =
            d4go(counters, found.at(i)) == r4success && d4lock(counters, found.at(i)) == r4success;
        if (stored && i == 0)
            f4assignLong(next, most);
        else if (stored)
            stored = d4delete(counters) == r4success;
        stored = stored && d4flush(counters) == r4success;
        if (!stored)
            d4discard(counters);
        d4unlock(counters);
        if (i == 0 || !stored)
            add(file,
                Words::tr("the next identifier for %1 is %2 now").arg(table.dataFile()).arg(most),
                stored);
    }
}

} // namespace maintenance
