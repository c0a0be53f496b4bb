// The searches of the customer list: by a tag's order, and by a walk of the whole table.
#include "search/frmCustomerList.h"

#include "common/base/AppInfo.h"
#include "common/base/clsSystem.h"
#include "common/base/Host.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "db/FieldText.h"
#include "search/CustomerMatcher.h"
#include "search/frmLookupCustomer.h"
#include "ui_frmCustomerList.h"

using namespace norvane::engine;

namespace
{

// The wait dialog and the rows on their way into the list. Every hundredth row lets window events
// through, which keeps the dialog's Cancel alive.
class Loading
{
public:
    Loading(ListView *list, const QString &message) : m_list(list)
    {
        gSys.WaitDlgShow(m_wait, app::title(), message, false, true);
        host().pumpEvents();
    }
    ~Loading() { gSys.WaitDlgRemove(m_wait); }
    Loading(const Loading &) = delete;
    Loading &operator=(const Loading &) = delete;

    void add(ListView::Row row)
    {
        m_rows.append(std::move(row));
        if (m_rows.size() >= batch)
            flush();
    }
    void flush()
    {
        m_list->addItems(std::move(m_rows));
        m_rows = {};
    }
    // False once the user has pressed Cancel.
    bool step()
    {
        if (++m_count % 100 == 0)
            host().pumpEvents();
        return !(m_wait && m_wait->cancelled());
    }

private:
    static constexpr qsizetype batch = 1000;
    ListView *m_list;
    WaitDlg m_wait;
    QList<ListView::Row> m_rows;
    qint32 m_count = 0;
};

QString trimmedText(Handle field)
{
    return FieldText(field).trimmed();
}

} // namespace

void frmCustomerList::runSearch(Handle table)
{
    if (m_sSearchStr.isEmpty()) {
        LoadAllCustomers(table, 0);
        return;
    }
    switch (m_SearchType) {
    case SearchLastName:
        LoadCustomersWithTag(table, QStringLiteral("lastname"));
        break;
    case SearchCompany:
        LoadCustomersWithTag(table, QStringLiteral("company"));
        break;
    case SearchNumber:
        LoadCustomersWithTag(table, QStringLiteral("custno"));
        break;
    case SearchWorkPhone:
        LoadCustomersWithTag(table, QStringLiteral("workphone"));
        break;
    case SearchAddress:
        LoadAllCustomers(table, SearchAddress);
        break;
    default:
        break;
    }
}

void frmCustomerList::LoadCustomersWithTag(Handle table, const QString &sTag)
{
    Loading loading(ui->lvCustomers, tr("Searching Customers. Please wait..."));
    d4tagSelect(table, d4tag(table, sTag.toLatin1().constData()));
    const ListFields fields = listFields(table);
    const QByteArray wanted = toStored(m_sSearchStr.trimmed());
    const std::string_view key(wanted.constData(), static_cast<std::size_t>(wanted.size()));
    for (Code found = d4seek(table, key); found == r4success; found = d4seekNext(table, key)) {
        loading.add(AddLvItem(fields));
        m_bCancelled = !loading.step();
        if (m_bCancelled)
            break;
    }
    loading.flush();
    const QString label = CustomLabels.GetCustomerLabelName(sTag, false);
    setWindowTitle(tr("Customers (") + label + u"='" + m_sSearchStr + u"') @" +
                   gSys.CurrTimeAMPM());
}

void frmCustomerList::LoadAllCustomers(Handle table, qint32 SearchType)
{
    Loading loading(ui->lvCustomers, tr("Listing Customers. Please wait..."));
    d4tagSelect(table, d4tag(table, "lastname"));
    const ListFields fields = listFields(table);
    const AddressFields stringFlds{d4field(table, "address1"),   d4field(table, "address2"),
                                   d4field(table, "city"),       d4field(table, "postalcode"),
                                   d4field(table, "workphone"),  d4field(table, "homephone"),
                                   d4field(table, "mobilphone"), d4field(table, "faxphone")};
    const CustomerMatcher matcher(m_sSearchStr);
    for (Code moved = d4top(table); moved == r4success; moved = d4skip(table, 1)) {
        if (SearchType != SearchAddress || CustomerMeetsCriteria(matcher, stringFlds))
            loading.add(AddLvItem(fields));
        m_bCancelled = !loading.step();
        if (m_bCancelled)
            break;
    }
    loading.flush();
    const QString what = SearchType == SearchAddress
                             ? QString(tr("Customers (Address contains '") + m_sSearchStr + u"')")
                             : tr("All Customers");
    setWindowTitle(what + u" @" + gSys.CurrTimeAMPM());
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

ListView::Row frmCustomerList::AddLvItem(const ListFields &fields) const
{
    return {u'N' + QString::number(f4long(fields.rowid)),
            {gSys.MakeFullName(trimmedText(fields.firstname), trimmedText(fields.lastname)),
             trimmedText(fields.company), trimmedText(fields.custno), trimmedText(fields.workphone),
             trimmedText(fields.city)}};
}
