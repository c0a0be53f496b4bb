// The customers that a long list names, each read once. For lookup entries: db/CustomerLists.h.
#pragma once

#include "db/CustomerLists.h"

#include <QHash>

// Customers as clsDB::GetCustomername calls them.
class CustomerNames
{
public:
    // `customers` is an open table of customers, which stays the caller's; `nameAlone` is what
    // clsDB::CustomerNameAlone says.
    CustomerNames(clsDB::Handle customers, bool nameAlone);
    QString of(qint32 custid); // empty when there is no such customer
    // "Company (Last, First)", or whichever of the two there is.
    static QString composed(const QString &company, const QString &name);

protected:
    // Goes to the customer's row; false when there is none.
    bool find(qint32 custid);
    QString companyAndName() const;

private:
    QString nameHere() const;

    clsDB::Handle m_customers, m_tag, m_rowid, m_firstname, m_lastname, m_company;
    bool m_nameAlone;
    qint64 m_offset = 0; // of record numbers to identifiers, where a row was found last
    QHash<qint32, QString> m_known;
};

// One line for each: name, place and telephone, as clsDB::GetCustomerDetail tells them.
class CustomerDetails : private CustomerNames
{
public:
    // The entries of the lists are the caller's too.
    CustomerDetails(clsDB::Handle customers, CategoryNames &entries);
    const QString &of(qint32 custid); // empty when there is no such customer

private:
    QString detailHere();

    CategoryNames &m_entries;
    clsDB::Handle m_city, m_state, m_phone;
    QHash<qint32, QString> m_known;
};
