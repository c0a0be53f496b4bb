// The searches of the customer list: by a tag's order, and by a walk of the whole table.
#include "search/frmCustomerList.h"

#include "common/base/clsSystem.h"
#include "common/ui/ListView.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "db/FieldText.h"
#include "search/CustomerMatcher.h"
#include "search/frmLookupCustomer.h"
#include "search/ListLoading.h"
#include "ui_frmCustomerList.h"

using namespace norvane::engine;

namespace
{

QString trimmedText(Handle field)
{
    return FieldText(field).trimmed();
}

} // namespace

bool frmCustomerList::runSearch(Handle table)
{
    if (m_sSearchStr.isEmpty())
        return LoadAllCustomers(table, 0);
    switch (m_SearchType) {
    case SearchLastName:
        return LoadCustomersWithTag(table, QStringLiteral("lastname"));
    case SearchCompany:
        return LoadCustomersWithTag(table, QStringLiteral("company"));
    case SearchNumber:
        return LoadCustomersWithTag(table, QStringLiteral("custno"));
    case SearchWorkPhone:
        return LoadCustomersWithTag(table, QStringLiteral("workphone"));
    case SearchAddress:
        return LoadAllCustomers(table, SearchAddress);
    default:
        return true;
    }
}

bool frmCustomerList::LoadCustomersWithTag(Handle table, const QString &sTag)
{
    ListLoading loading(tr("Searching Customers. Please wait..."));
    d4tagSelect(table, d4tag(table, sTag.toLatin1().constData()));
    const ListFields fields = listFields(table);
    const QByteArray wanted = toStored(m_sSearchStr.trimmed());
    const std::string_view key(wanted.constData(), static_cast<std::size_t>(wanted.size()));
    bool more = true;
    for (Code found = d4seek(table, key); more && found == r4success;
         found = d4seekNext(table, key)) {
        AddLvItem(fields);
        more = loading.goOn();
    }
    const QString label = CustomLabels.GetCustomerLabelName(sTag, false);
    setWindowTitle(tr("Customers (") + label + u"='" + m_sSearchStr + u"') @" +
                   gSys.CurrTimeAMPM());
    return more;
}

bool frmCustomerList::LoadAllCustomers(Handle table, qint32 SearchType)
{
    ListLoading loading(tr("Listing Customers. Please wait..."));
    d4tagSelect(table, d4tag(table, "lastname"));
    const ListFields fields = listFields(table);
    const AddressFields stringFlds{d4field(table, "address1"),   d4field(table, "address2"),
                                   d4field(table, "city"),       d4field(table, "postalcode"),
                                   d4field(table, "workphone"),  d4field(table, "homephone"),
                                   d4field(table, "mobilphone"), d4field(table, "faxphone")};
    const CustomerMatcher matcher(m_sSearchStr);
    bool more = true;
    for (Code moved = d4top(table); more && moved == r4success; moved = d4skip(table, 1)) {
        if (SearchType != SearchAddress || CustomerMeetsCriteria(matcher, stringFlds))
            AddLvItem(fields);
        more = loading.goOn();
    }
    const QString what = SearchType == SearchAddress
                             ? QString(tr("Customers (Address contains '") + m_sSearchStr + u"')")
                             : tr("All Customers");
    setWindowTitle(what + u" @" + gSys.CurrTimeAMPM());
    return more;
}

bool frmCustomerList::CustomerMeetsCriteria(const CustomerMatcher &matcher,
                                            const AddressFields &stringFlds)
{
    if (m_sSearchStr.isEmpty())
        return true;
    for (const Handle field : stringFlds) {
        if (FieldContainsSearchStr(matcher, field))
            return true;
    }
    return false;
}

bool frmCustomerList::FieldContainsSearchStr(const CustomerMatcher &matcher, Handle fld)
{
    return fld > 0 && matcher.fieldContains({f4ptr(fld), f4len_v(fld)});
}

frmCustomerList::ListFields frmCustomerList::listFields(Handle table)
{
    return {d4field(table, "rowid"),   d4field(table, "lastname"), d4field(table, "firstname"),
            d4field(table, "company"), d4field(table, "custno"),   d4field(table, "workphone"),
            d4field(table, "city")};
}

void frmCustomerList::AddLvItem(const ListFields &fields)
{
    ui->lvCustomers->addItem(
        LvKey(f4long(fields.rowid)),
        {gSys.MakeFullName(trimmedText(fields.firstname), trimmedText(fields.lastname)),
         trimmedText(fields.company), trimmedText(fields.custno), trimmedText(fields.workphone),
         trimmedText(fields.city)});
}
