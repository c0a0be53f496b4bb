#include "db/report/ProductReportRun.h"

#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/Host.h"
#include "db/clsCustomLabels.h"
#include "db/CustomerLists.h"
#include "db/FieldText.h"
#include "db/search/ShownNames.h"
#include "db/TableUse.h"

#include <QCoreApplication>

using norvane::engine::d4deleted;
using norvane::engine::f4long;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(ProductReportRun)
};

bool contains(const QString &text, const QString &wanted)
{
    return wanted.isEmpty() || text.contains(wanted, Qt::CaseInsensitive);
}

} // namespace

std::vector<ReportTable::Column> ProductReportRun::columns()
{
    const QString text = QStringLiteral("S");
    const QString number = QStringLiteral("I");
    std::vector<ReportTable::Column> columns{
        {Words::tr("Row"), number, ReportTable::RowNumberColumn},
        {Words::tr("Product/Service"), text},
        {Words::tr("Customer"), text},
        {Words::tr("Cust Id"), number},
        {Words::tr("Is Active?"), text},
    };
    for (const char *field : {"dateinit", "dateterm", "custom1", "custom2", "contno", "trackno",
                              "conttype", "contdur", "shortdesc"}) {
        const QString name = QString::fromLatin1(field);
        columns.push_back({CustomLabels.GetPSLabelName(name),
                           name.startsWith(u"date") ? QStringLiteral("D") : text});
    }
    return columns;
}

bool ProductReportRun::FiltersPassed(qint32 psid, bool isActive, const QString &custom1,
                                     const QString &custom2) const
{
    if (m_criteria.productServiceId > 0 && m_criteria.productServiceId != psid)
        return false;
    if (m_criteria.isActive >= 0 && (m_criteria.isActive == 1) != isActive)
        return false;
    return contains(custom1, m_criteria.custom1) && contains(custom2, m_criteria.custom2);
}

std::optional<qint32> ProductReportRun::run(ReportTable &table, const ReportRun::GoOn &goOn)
{
    using Ran = std::optional<qint32>;
    return guarded("ProductReportRun_run", Ran(), [&]() -> Ran {
        TableUse rows(gDB, gDB.Customers2PSTable());
        const TableUse customerRows(gDB, gDB.CustomerTable());
        const TableUse categoryRows(gDB, gDB.CategoryTable());
        if (!rows || !customerRows || !categoryRows)
            return {};
        const auto field = [&rows](const char *name) { return rows.field(QLatin1String(name)); };
        const auto text = [](clsDB::Handle at) { return clsSystem::Trim(FieldText(at)); };
        const clsDB::Handle rowid = field("rowid"), product = field("psid"),
                            customer = field("custid"), number = field("contno"),
                            type = field("conttype"), duration = field("contdur"),
                            tracking = field("trackno"), first = field("custom1"),
                            second = field("custom2"), description = field("shortdesc"),
                            begins = field("dateinit"), ends = field("dateterm");
        CategoryNames categories(gDB, categoryRows.handle());
        CustomerNames customers(customerRows.handle(), gDB.CustomerNameAlone());
        const QDate today = host().now().date();
        qint32 found = 0;
        rows.select(QStringLiteral("PSID"));
        for (bool more = rows.top(); more; more = rows.next()) {
            const QString end = clsSystem::DBDateToDislayDate(text(ends));
            const bool active = !clsSystem::IsDate(end) || clsSystem::Str2Date(end) >= today;
            const QString custom1 = text(first), custom2 = text(second);
            const qint32 psid = f4long(product), custid = f4long(customer);
            if (!d4deleted(rows.handle()) && FiltersPassed(psid, active, custom1, custom2)) {
                clsSystem::IncL(found);
                table.rows.push_back(
                    {f4long(rowid),
                     {QString(), categories.of(psid), customers.of(custid), QString::number(custid),
                      active ? Words::tr("Yes") : Words::tr("NO"),
                      clsSystem::DBDateToDislayDate(text(begins)), end, custom1, custom2,
                      text(number), text(tracking), categories.of(f4long(type)),
                      categories.of(f4long(duration)), text(description)}});
            }
            if (!goOn(found))
                break;
        }
        return found;
    });
}
