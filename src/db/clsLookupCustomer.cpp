#include "db/clsLookupCustomer.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/TableUse.h"

namespace
{

const QString CustNo = QStringLiteral("custno");
const QString Rowid = QStringLiteral("rowid");

// Rows with exactly this key, which may begin with blanks.
qint32 countKey(TableUse &customers, const QString &key, qint32 excludeRowId)
{
    const QString wanted = clsSystem::Trim(key).toUpper();
    qint32 count = 0;
    for (bool found = customers.seekText(key, CustNo); found;
         found = customers.seekNextText(key, CustNo)) {
        if (customers.number(Rowid) != excludeRowId && customers.text(CustNo).toUpper() == wanted)
            ++count;
    }
    return count;
}

} // namespace

qint32 clsLookupCustomer::CustomersWithCustomerNumber(const QString &customerNumber,
                                                      qint32 excludeRowId, clsDB::Handle tb_cust)
{
    return guarded("clsLookupCustomer_CustomersWithCustomerNumber", 0, [&] {
        TableUse customers(gDB, gDB.CustomerTable(), tb_cust);
        if (!customers || !customers.select(CustNo))
            return 0;
        QString key = clsSystem::Trim(customerNumber);
        qint32 count = countKey(customers, key, excludeRowId);
        if (key.isEmpty())
            return count;
        // Numbers stored behind leading blanks stand elsewhere in the order: one seek for each
        // possible count of blanks is far less than a walk over all customers.
        const auto width =
            static_cast<qsizetype>(norvane::engine::f4len_v(customers.field(CustNo)));
        while (key.size() < width) {
            key.prepend(QLatin1Char(' '));
            count += countKey(customers, key, excludeRowId);
        }
        return count;
    });
}
