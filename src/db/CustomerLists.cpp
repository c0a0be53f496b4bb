#include "db/CustomerLists.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/TableUse.h"

namespace
{

const QString CustomerTag = QStringLiteral("custid");

// Calls `row` at each row of the customer's; nothing when a table cannot be opened.
template <class Row>
void eachRow(clsDB &db, const QString &path, qint32 custid, Row &&row)
{
    const TableUse categories(db, db.CategoryTable());
    TableUse rows(db, path);
    if (!categories || !rows || !rows.select(CustomerTag))
        return;
    CategoryNames names(db, categories.handle());
    for (bool found = rows.seek(custid); found; found = rows.seekNext(custid))
        row(rows, names);
}

} // namespace

const QString &CategoryNames::of(qint32 rowid)
{
    auto known = m_known.find(rowid);
    if (known == m_known.end())
        known = m_known.insert(rowid, m_db.GetCategoryDesc(rowid, m_table));
    return *known;
}

std::vector<CustomerSubscription> customerSubscriptions(clsDB &db, qint32 custid)
{
    std::vector<CustomerSubscription> all;
    guarded("clsDB_customerSubscriptions", [&] {
        eachRow(db, db.Customers2PSTable(), custid, [&](TableUse &rows, CategoryNames &names) {
            all.push_back({rows.number(QStringLiteral("rowid")),
                           names.of(rows.number(QStringLiteral("psid"))),
                           rows.text(QStringLiteral("shortdesc")),
                           clsSystem::DBDateToDislayDate(rows.text(QStringLiteral("dateinit"))),
                           clsSystem::DBDateToDislayDate(rows.text(QStringLiteral("dateterm")))});
        });
    });
    return all;
}

std::vector<CustomerIssue> customerIssues(clsDB &db, qint32 custid)
{
    std::vector<CustomerIssue> all;
    guarded("clsDB_customerIssues", [&] {
        eachRow(db, db.IssuesTable(), custid, [&](TableUse &rows, CategoryNames &names) {
            const QString submitDate = rows.text(QStringLiteral("submitdt"));
            all.push_back({rows.number(QStringLiteral("rowid")),
                           names.of(rows.number(QStringLiteral("status"))),
                           rows.text(QStringLiteral("shortdesc")),
                           names.of(rows.number(QStringLiteral("psid"))),
                           clsSystem::DBDateToDislayDate(submitDate), submitDate});
        });
    });
    return all;
}
