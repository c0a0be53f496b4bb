// What a customer holds and has raised, as his window lists it.
#pragma once

#include "db/clsDB.h"

#include <QHash>
#include <QString>

#include <vector>

// Descriptions of lookup entries. Each is read once, however many rows name it.
class CategoryNames
{
public:
    // The category table, open as long as this is used.
    CategoryNames(clsDB &db, clsDB::Handle categories) : m_db(db), m_table(categories) {}
    const QString &of(qint32 rowid); // empty when there is no such entry

private:
    clsDB &m_db;
    clsDB::Handle m_table;
    QHash<qint32, QString> m_known;
};

// Dates are in their short form, as they are shown.
struct CustomerSubscription {
    qint32 rowid = 0;
    QString product, shortDescription, initiated, terminated;
};

struct CustomerIssue {
    qint32 rowid = 0;
    QString status, shortDescription, product, submitted;
    QString submitDate; // as it is stored, for sorting
};

// In the order of the table's index; empty when a table cannot be opened, which was or will be
// told.
std::vector<CustomerSubscription> customerSubscriptions(clsDB &db, qint32 custid);
std::vector<CustomerIssue> customerIssues(clsDB &db, qint32 custid);
