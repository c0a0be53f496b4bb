#include "db/maintenance/FolderCheck.h"

#include "db/FieldText.h"
#include "db/maintenance/Advice.h"

#include <QCoreApplication>

#include <algorithm>

namespace maintenance
{

using namespace norvane::engine;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FolderCheck)
};

constexpr qint64 MostFindingsOfAFile = 8;
constexpr qint32 FirstIdentifier = 1000;

} // namespace

const QList<Finding> &FolderCheck::run()
{
    for (const schema::TableInfo &table : schema::tables())
        checkFiles(table);
    for (const schema::TableInfo &table : schema::tables())
        checkTable(table);
    checkCounters();
    checkReferences();
    return m_findings;
}

const QList<Finding> &FolderCheck::run(const schema::TableInfo &table)
{
    checkFiles(table);
    checkTable(table);
    return m_findings;
}

void FolderCheck::add(const QString &file, const QString &text, const QString &advice, bool serious)
{
    m_findings.append({file, text, advice, serious});
}

void FolderCheck::checkFiles(const schema::TableInfo &table)
{
    for (const QString &file : table.files())
        if (m_files.pathOf(file).isEmpty())
            add(file, Words::tr("the file is missing"), adviceForMissing(table, file));
}

// Read along, so that nothing is put right before it is told. A save that was left unfinished has
// to be finished by somebody who may write.
Handle FolderCheck::open(const schema::TableInfo &table)
{
    if (!m_files.has(table))
        return 0;
    const std::string path = m_files.pathOf(table.dataFile()).toStdString();
    const Handle session = m_files.session();
    code4errorCode(session, 0);
    code4readOnly(session, 1);
    Handle handle = d4open(session, path);
    code4readOnly(session, 0);
    if (handle < 1 && lastError(session).kind == ErrorKind::ReadOnly)
        handle = d4open(session, path);
    return handle;
}

void FolderCheck::checkTable(const schema::TableInfo &table)
{
    if (!m_files.has(table))
        return;
    const Handle handle = open(table);
    if (handle < 1) {
        const Error &error = lastError(m_files.session());
        const QString named = fileName(error.file);
        const QString file = named.isEmpty() ? table.dataFile() : named;
        add(file, failureText(error), adviceFor(file, error.kind));
        return;
    }
    checkFields(table, handle);
    const std::vector<std::string> lines = d4check(handle);
    explain(table, lines);
    // What the engine would not write to, though the check has nothing against it.
    if (const Error &damage = d4damage(handle); lines.empty() && damage)
        add(fileName(damage.file), failureText(damage),
            adviceFor(fileName(damage.file), damage.kind));
    checkRows(table, handle);
    d4close(handle);
}

// Damage of one kind repeats itself, so each file shows its first findings and counts the rest.
void FolderCheck::explain(const schema::TableInfo &table, const std::vector<std::string> &lines)
{
    QHash<QString, qint64> found;
    for (const std::string &line : lines) {
        const ExplainedLine explained = explainLine(QString::fromStdString(line), table);
        if (++found[explained.file] <= MostFindingsOfAFile)
            add(explained.file, explained.text, adviceFor(explained.file, ErrorKind::Damaged));
    }
    const QStringList files = table.files();
    for (const QString &file : files) {
        const qint64 more = found.value(file) - MostFindingsOfAFile;
        if (more < 1)
            continue;
        add(file, Words::tr("%1 more findings like these").arg(more),
            Words::tr("The advice above holds for them too."));
        m_findings.last().count = more;
    }
}

void FolderCheck::checkFields(const schema::TableInfo &table, Handle handle)
{
    for (const FieldDef &field : table.def.fields)
        if (d4field(handle, field.name) < 1)
            add(table.dataFile(),
                Words::tr("the field %1 is missing").arg(QString::fromLatin1(field.name.c_str())),
                adviceForLayout());
    for (const TagDef &tag : table.def.tags)
        if (d4tag(handle, tag.name) < 1)
            add(table.indexFile(),
                Words::tr("the tag %1 is missing").arg(QString::fromLatin1(tag.name.c_str())),
                adviceFor(table.indexFile(), ErrorKind::Damaged));
}

void FolderCheck::checkRows(const schema::TableInfo &table, Handle handle)
{
    const Handle rowid = d4field(handle, "rowid");
    if (rowid < 1)
        return;
    RowFacts &facts = m_facts[static_cast<int>(table.table)];
    d4tagSelect(handle, 0);
    Code code = d4top(handle);
    for (; code == r4success; code = d4skip(handle, 1)) {
        const qint32 id = f4long(rowid);
        facts.highest = std::max(facts.highest, id);
        if (!d4deleted(handle))
            ++facts.live[id];
    }
    facts.read = code == r4eof;
    if (!facts.read)
        add(table.dataFile(), failureText(lastError(m_files.session())),
            adviceFor(table.dataFile(), ErrorKind::Damaged));
    checkIdentifiers(table, facts);
}

void FolderCheck::checkIdentifiers(const schema::TableInfo &table, const RowFacts &facts)
{
    QList<qint32> wrong;
    for (auto it = facts.live.cbegin(); it != facts.live.cend(); ++it)
        if (it.value() > 1 || it.key() < 1)
            wrong << it.key();
    std::sort(wrong.begin(), wrong.end());
    for (const qint32 id : wrong.mid(0, MostFindingsOfAFile)) {
        const QString text = id < 1 ? Words::tr("%1 rows have the rowid %2, which no record has")
                                    : Words::tr("%1 rows share the rowid %2");
        add(table.dataFile(), text.arg(facts.live.value(id)).arg(id), adviceForIdentifiers());
    }
}

void FolderCheck::checkCounters()
{
    const schema::TableInfo &counterTable = schema::table(schema::Table::LastID);
    const Handle handle = open(counterTable);
    if (handle < 1)
        return; // said already
    const Handle name = d4field(handle, "tblname");
    const Handle next = d4field(handle, "lastid");
    QHash<QString, QList<qint32>> counters;
    d4tagSelect(handle, 0);
    for (Code code = d4top(handle); code == r4success && name > 0 && next > 0;
         code = d4skip(handle, 1))
        if (!d4deleted(handle))
            counters[FieldText(name).trimmed().toLower()] << f4long(next);
    d4close(handle);
    for (const schema::TableInfo &table : schema::tables())
        checkCounter(table, counters.value(table.dataFile()));
}

void FolderCheck::checkCounter(const schema::TableInfo &table, const QList<qint32> &counters)
{
    const QString file = schema::table(schema::Table::LastID).dataFile();
    if (counters.size() > 1)
        add(file, Words::tr("%1 counters for %2").arg(counters.size()).arg(table.dataFile()),
            adviceForCounters());
    const RowFacts facts = m_facts.value(static_cast<int>(table.table));
    const qint32 next = counters.isEmpty() ? FirstIdentifier : counters.first();
    if (next < FirstIdentifier)
        add(file,
            Words::tr("the next identifier for %1 is %2, which is none")
                .arg(table.dataFile())
                .arg(next),
            adviceForCounters());
    else if (facts.highest >= next)
        add(file,
            Words::tr("the next identifier for %1 is %2, but %3 is in use already")
                .arg(table.dataFile())
                .arg(next)
                .arg(facts.highest),
            adviceForCounters());
}

void FolderCheck::checkReferences()
{
    using schema::Table;
    checkReference(Table::Customer2PS, "custid", Table::Customer);
    checkReference(Table::Issues, "custid", Table::Customer);
    checkReference(Table::IssuesActions, "issueid", Table::Issues);
    checkReference(Table::Customer, "custcat", Table::Category);
    checkReference(Table::Customer, "state", Table::Category);
    checkReference(Table::Customer, "country", Table::Category);
    checkReference(Table::Customer2PS, "psid", Table::Category);
    checkReference(Table::Customer2PS, "conttype", Table::Category);
    checkReference(Table::Customer2PS, "contdur", Table::Category);
    checkReference(Table::Issues, "psid", Table::Category);
    checkReference(Table::Issues, "priority", Table::Category);
    checkReference(Table::Issues, "status", Table::Category);
    checkReference(Table::Issues, "issuecat", Table::Category);
    checkReference(Table::IssuesActions, "action", Table::Category);
}

// A row that was deleted while others still name it is allowed; the screens show an empty text.
void FolderCheck::checkReference(schema::Table from, const char *field, schema::Table to)
{
    const RowFacts &target = m_facts[static_cast<int>(to)];
    if (!target.read || !m_facts.value(static_cast<int>(from)).read)
        return;
    const schema::TableInfo &table = schema::table(from);
    const Handle handle = open(table);
    const Handle reference = handle < 1 ? 0 : d4field(handle, field);
    int lost = 0;
    if (reference > 0) {
        d4tagSelect(handle, 0);
        for (Code code = d4top(handle); code == r4success; code = d4skip(handle, 1))
            if (!d4deleted(handle) && f4long(reference) > 0 &&
                !target.live.contains(f4long(reference)))
                ++lost;
    }
    if (handle > 0)
        d4close(handle);
    if (lost > 0)
        add(table.dataFile(),
            Words::tr("%1 rows name a record of %2 in the field %3 that is not there")
                .arg(lost)
                .arg(schema::table(to).dataFile(), QLatin1String(field)),
            Words::tr("The screens show nothing in that place."), false);
}

} // namespace maintenance
