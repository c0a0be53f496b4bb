#include "db/import/ImportRun.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "db/import/CsvReader.h"
#include "db/import/CsvText.h"
#include "db/TableUse.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ImportRun)
};

// Others wait for a group as long as for a few saves.
constexpr qint32 rowsInGroup = 2000;
constexpr qsizetype lettersInGroup = 4 << 20;
// A group cannot be tried again: others may hold the table for long, and only a dead one longer.
constexpr int attemptsAtGroup = 60; // seconds

const clsImportColDef *columnNamed(const QString &heading, const clsImportColDefs &columns)
{
    for (const clsImportColDef &def : columns) {
        if (def.name == heading)
            return &def;
    }
    return nullptr;
}

} // namespace

ImportRun::ImportRun(clsDB &db, qint32 target, QStringList headings, qint32 rowCount)
    : m_db(db),
      m_target(target),
      m_headings(std::move(headings)),
      m_rowCount(rowCount),
      m_columns(columns(target)),
      m_blank(db.NewCustomerRecColl())
{
}

clsImportColDefs ImportRun::columns(qint32 target)
{
    return target == NewCustomers ? customerImportColumns() : lookupImportColumns();
}

ImportResult ImportRun::ImportData_Detail(const QString &path)
{
    m_result = {};
    if (!m_db.MayWrite())
        return m_result;
    QString fault;
    // A folder that goes away on the run fails every row that is left.
    const clsDB::TellOnce once(m_db);
    WaitDlg progress;
    clsSystem::WaitDlgShow(progress, Words::tr("Import Data"),
                           Words::tr("Integrating data. Please wait..."), true, false);
    m_result.ok = guarded("frmDataImport_ImportData_Detail", false, [&] {
        fault = openTables();
        return fault.isEmpty() && importRows(path, progress);
    });
    closeTables();
    clsSystem::WaitDlgRemove(progress);
    if (!fault.isEmpty())
        prompts::critical(fault);
    return m_result;
}

// The message when one cannot be opened.
QString ImportRun::openTables()
{
    m_customers = m_db.OpenTable(m_db.CustomerTable());
    if (m_customers <= 0)
        return Words::tr("Unable to open Customer table!");
    m_categories = m_db.OpenTable(m_db.CategoryTable());
    if (m_categories <= 0)
        return Words::tr("Unable to open Category table!");
    return {};
}

void ImportRun::closeTables()
{
    for (clsDB::Handle *table : {&m_customers, &m_categories}) {
        if (*table > 0)
            m_db.CloseTable(*table);
        *table = 0;
    }
}

bool ImportRun::importRows(const QString &path, const WaitDlg &progress)
{
    CsvReader reader(path);
    if (!reader.open())
        throw reader.failure();
    const schema::Table table =
        m_target == NewCustomers ? schema::Table::Customer : schema::Table::Category;
    const clsDB::IdBlock ids(m_db, schema::table(table).dataFile(), rowsInGroup);
    SaveGroup group(m_customers);
    bool good = true;
    qint32 rowNumber = 1;
    qint32 rows = 0;
    qsizetype letters = 0;
    for (auto line = reader.readLine(); line; line = reader.readLine(), ++rowNumber) {
        // That was told; the rows that are left would only tell it again.
        if (m_db.IsReadOnly())
            return false;
        clsSystem::WaitDlgUpdate(progress, percentOf(rowNumber));
        host().pumpEvents();
        const QString row = clsSystem::Trim(*line);
        if (rowNumber == 1 || row.isEmpty())
            continue;
        ++m_result.tried;
        m_result.lostLetters += reader.lineLostLetters() ? 1 : 0;
        const QStringList values = SplitCsvRowForStoring(row);
        const bool added = m_target == NewCustomers ? AddCustomer(values) : AddCategory(values);
        good = added && good;
        letters += row.size();
        if (++rows == rowsInGroup || letters > lettersInGroup) {
            good = storeWaiting(group) && good;
            m_entries.clear();
            rows = 0;
            letters = 0;
        }
    }
    good = storeWaiting(group) && good;
    if (reader.failed())
        throw reader.failure();
    return good;
}

// What waits goes in together.
bool ImportRun::storeWaiting(SaveGroup &group)
{
    const std::vector<qint32> rowids = std::exchange(m_waiting, {});
    if (rowids.empty())
        return true;
    if (m_db.IsReadOnly())
        return false;
    const LockAttempts patient(m_db.CBEngine(), attemptsAtGroup);
    if (!group.store())
        return false;
    for (const qint32 rowid : rowids)
        noteStored(rowid);
    return true;
}

int ImportRun::percentOf(qint32 rowNumber) const
{
    return static_cast<int>(qint64(rowNumber) * 100 / (qint64(m_rowCount) + 1));
}

bool ImportRun::AddCustomer(const QStringList &values)
{
    RecColl record = m_blank;
    const qsizetype count = std::min(values.size(), m_headings.size());
    for (qsizetype i = 0; i < count; ++i) {
        const clsImportColDef *def = columnNamed(m_headings[i], m_columns);
        if (def == nullptr)
            continue;
        if (def->lookupType == 0)
            record.replace(def->target, values[i]);
        else
            record.replace(def->target, entry(values[i], def->lookupType));
    }
    const QString lastname = QStringLiteral("lastname");
    if (record.text(lastname).isEmpty() && record.text(QStringLiteral("company")).isEmpty())
        record.replace(lastname, QStringLiteral("Un-named"));
    if (!m_db.SaveRecord(record, false, m_customers))
        return false;
    m_waiting.push_back(record.number(QStringLiteral("_rowid")));
    return true;
}

// The same few entries come again and again; what others did to the list is seen after a while.
qint32 ImportRun::entry(const QString &text, int listType)
{
    const qint32 known = m_entries.value({listType, text}, 0);
    if (known > 0)
        return known;
    const qint32 rowid = m_db.LookupOrAddCategory(text, listType, m_categories);
    if (rowid > 0)
        m_entries.insert({listType, text}, rowid);
    return rowid;
}

bool ImportRun::AddCategory(const QStringList &values)
{
    if (m_headings.isEmpty() || values.isEmpty() ||
        m_headings.front() != QLatin1String("DESCRIPTION"))
        return false;
    const QString &text = values.front();
    const bool known = !text.isEmpty() && m_db.CategoryExists(text, m_target, m_categories) > 0;
    const qint32 rowid = m_db.LookupOrAddCategory(text, m_target, m_categories);
    if (known)
        ++m_result.skipped;
    else if (rowid > 0)
        noteStored(rowid);
    // A failed addition answers -1, which does not stop the count of the rows that went in.
    return rowid != 0;
}

void ImportRun::noteStored(qint32 rowid)
{
    ++m_result.stored;
    if (m_onStored)
        m_onStored(rowid);
}
