// Writes a checked file into the open database, one record a row, tables opened once for the
// whole run. New customers go in two thousand at a time: all of them or, when their save fails,
// none. Nothing stored is undone when rows fail, and the rows after them are tried all the same.
#pragma once

#include "common/base/clsSystem.h"
#include "db/clsDB.h"
#include "db/import/clsImportData.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

class SaveGroup;

struct ImportResult {
    bool ok = false;        // everything could be opened and every row went in
    qint32 tried = 0;       // rows that are not blank; the number told to the user
    qint32 stored = 0;      // new records
    qint32 skipped = 0;     // list entries that were there already
    qint32 lostLetters = 0; // rows with letters that cannot be stored
};

class ImportRun
{
public:
    // The target code of customers; every other target is the type code of a lookup list.
    static constexpr qint32 NewCustomers = 0;

    // `headings` as ValidateCols gave them, `rowCount` as ValidateRows did.
    ImportRun(clsDB &db, qint32 target, QStringList headings, qint32 rowCount);
    static clsImportColDefs columns(qint32 target);

    // Called with each new rowid as soon as its save is acknowledged.
    void onStored(std::function<void(qint32 rowid)> stored) { m_onStored = std::move(stored); }
    ImportResult ImportData_Detail(const QString &path);

private:
    bool importRows(const QString &path, const WaitDlg &progress);
    QString openTables();
    void closeTables();
    bool AddCustomer(const QStringList &values);
    bool storeWaiting(SaveGroup &group);
    bool AddCategory(const QStringList &values);
    qint32 entry(const QString &text, int listType);
    void noteStored(qint32 rowid);
    int percentOf(qint32 rowNumber) const;

    clsDB &m_db;
    qint32 m_target;
    QStringList m_headings;
    qint32 m_rowCount;
    clsImportColDefs m_columns;
    RecColl m_blank; // a new customer
    std::function<void(qint32)> m_onStored;
    std::vector<qint32> m_waiting; // rowids of customers whose save is to come
    clsDB::Handle m_customers = 0;
    clsDB::Handle m_categories = 0;
    QHash<std::pair<int, QString>, qint32> m_entries; // of lists, met lately
    ImportResult m_result;
};
