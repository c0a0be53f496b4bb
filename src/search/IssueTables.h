// The tables that a list of issues is read from, open while it lives, and the names its rows show.
#pragma once

#include "db/CustomerLists.h"
#include "db/search/IssueSearch.h"
#include "db/search/ShownNames.h"
#include "db/TableUse.h"

#include <optional>

class IssueTables
{
public:
    IssueTables();
    // False when one of them could not be opened; that was told.
    explicit operator bool() const { return m_customerNames.has_value(); }

    clsDB::Handle issues() const { return m_issues->handle(); }
    const QString &category(qint32 rowid) { return m_categoryNames->of(rowid); }
    QString customer(qint32 custid) { return m_customerNames->of(custid); }

    // As lists show it; the same days come again and again.
    QString shortDate(const QString &stored);

    // Once the rows have them, while there is other work to do with them.
    void forgetNames();

    static QString itemKey(const IssueHit &hit);
    static QString text(std::string_view stored);

private:
    std::optional<TableUse> m_issues, m_customers, m_categories;
    std::optional<CategoryNames> m_categoryNames;
    std::optional<CustomerNames> m_customerNames;
    QHash<QString, QString> m_dates;
};
