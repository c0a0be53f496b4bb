// Customers as other screens and reports name them.
#include "db/clsDB.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "db/search/ShownNames.h"
#include "db/TableUse.h"

namespace
{

const QString RowidTag = QStringLiteral("rowid");
const QString CustomerTag = QStringLiteral("custid");
const QString ProductField = QStringLiteral("psid");

} // namespace

bool clsDB::CustomerNameAlone()
{
    return GetParamValue(QStringLiteral("CUSTOMERNAME_DISPLAY")) == u"1";
}

QString clsDB::GetCustomername(qint32 custid, Handle customers)
{
    return guarded("clsDB_GetCustomername", QString(), [&] {
        TableUse rows(*this, CustomerTable(), customers);
        if (!rows)
            return QString();
        return CustomerNames(rows.handle(), CustomerNameAlone()).of(custid);
    });
}

QString clsDB::GetCustomerDetail(qint32 custid, Handle customers, Handle categories)
{
    return guarded("clsDB_GetCustomerDetail", QString(), [&] {
        TableUse rows(*this, CustomerTable(), customers);
        if (!rows)
            return QString();
        CategoryNames names(*this, categories);
        return CustomerDetails(rows.handle(), names).of(custid);
    });
}

QString clsDB::GetCustomerEmail(qint32 custid, Handle customers)
{
    return guarded("clsDB_GetCustomerEmail", QString(), [&] {
        TableUse rows(*this, CustomerTable(), customers);
        if (!rows)
            return QString();
        rows.select(RowidTag);
        if (!rows.seek(custid))
            return QString();
        const QString address = rows.text(QStringLiteral("emailname"));
        return address.isEmpty() ? rows.text(QStringLiteral("emailname2")) : address;
    });
}

bool clsDB::CustomerHasPS(qint32 custid, qint32 psid, Handle subscriptions)
{
    return guarded("clsDB_CustomerHasPS", false, [&] {
        TableUse rows(*this, Customers2PSTable(), subscriptions);
        if (!rows)
            return false;
        rows.select(CustomerTag);
        for (bool found = rows.seek(custid); found; found = rows.seekNext(custid)) {
            if (rows.number(ProductField) == psid)
                return true;
        }
        return false;
    });
}

QString clsDB::CustomerPS(qint32 custid, Handle subscriptions, Handle categories)
{
    return guarded("clsDB_CustomerPS", QString(), [&] {
        TableUse rows(*this, Customers2PSTable(), subscriptions);
        TableUse items(*this, CategoryTable(), categories);
        if (!rows || !items)
            return QString();
        QStringList names;
        rows.select(CustomerTag);
        for (bool found = rows.seek(custid); found; found = rows.seekNext(custid))
            names.append(GetCategoryDesc(rows.number(ProductField), items.handle()));
        return names.join(u';');
    });
}
