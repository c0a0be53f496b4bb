#include "search/IssueTables.h"

#include "common/base/clsSystem.h"
#include "common/ui/ListView.h"
#include "db/FieldText.h"

// The first that cannot be opened is told, not the others as well.
IssueTables::IssueTables()
{
    if (!m_issues.emplace(gDB, gDB.IssuesTable()) ||
        !m_customers.emplace(gDB, gDB.CustomerTable()) ||
        !m_categories.emplace(gDB, gDB.CategoryTable()))
        return;
    m_categoryNames.emplace(gDB, m_categories->handle());
    m_customerNames.emplace(m_customers->handle(), gDB.CustomerNameAlone());
}

QString IssueTables::shortDate(const QString &stored)
{
    QString &shown = m_dates[stored];
    if (shown.isNull())
        shown = clsSystem::DBDateToDislayDate(stored);
    return shown;
}

void IssueTables::forgetNames()
{
    m_customerNames.reset();
    m_categoryNames.reset();
    m_dates = {};
}

QString IssueTables::itemKey(const IssueHit &hit)
{
    return LvKey(hit.rowid);
}

QString IssueTables::text(std::string_view stored)
{
    return fromStored(stored.data(), static_cast<qsizetype>(stored.size()));
}
