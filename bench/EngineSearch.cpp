// The searches of the windows of issues, by the classes that they use.
#include "db/search/IssueSearch.h"
#include "db/search/ShownNames.h"
#include "db/search/WordMatcher.h"
#include "EngineStore.h"

#include <QHash>

using namespace norvane::engine;

namespace bench
{

namespace
{

QString text(std::string_view stored)
{
    return QString::fromLatin1(stored.data(), static_cast<qsizetype>(stored.size()));
}

} // namespace

// Collects rows with their texts and names.
class EngineStore::HitList
{
public:
    explicit HitList(const EngineStore &store)
        : m_issues(store, schema::Table::Issues),
          m_customers(store, schema::Table::Customer),
          m_categories(store, schema::Table::Category),
          m_search(m_issues.table()),
          m_names(m_customers.table(), false)
    {
        m_categories.select("rowid");
    }

    long search(const IssueQuery &query)
    {
        m_search.search(
            query, [this](const IssueHit &hit) { add(hit); }, [] { return true; });
        if (m_search.unreadable() > 0)
            throw std::runtime_error("a memo could not be read");
        return static_cast<long>(m_rows.size());
    }
    long assignedTo(int user)
    {
        m_search.assignedTo(
            user, {}, [this](const IssueHit &hit) { add(hit); }, [] { return true; });
        return static_cast<long>(m_rows.size());
    }

private:
    struct Shown {
        qint32 rowid;
        QString shortDesc, status, customer;
    };

    void add(const IssueHit &hit)
    {
        auto status = m_statuses.constFind(hit.status);
        if (status == m_statuses.constEnd())
            status = m_statuses.insert(hit.status, category(hit.status));
        m_rows.push_back({hit.rowid, text(hit.shortdesc), *status, m_names.of(hit.custid)});
    }
    QString category(qint32 rowid) const
    {
        const Handle name = m_categories.field("desc");
        return m_categories.seek(rowid) ? text({f4ptr(name), f4len_v(name)}).trimmed() : QString();
    }

    Use m_issues, m_customers, m_categories;
    IssueSearch m_search;
    CustomerNames m_names;
    QHash<qint32, QString> m_statuses;
    std::vector<Shown> m_rows;
};

long EngineStore::searchShort(std::string_view word)
{
    IssueQuery query;
    query.text = text(word);
    return HitList(*this).search(query);
}

long EngineStore::searchMemos(std::string_view word)
{
    IssueQuery query;
    query.text = text(word);
    query.inShortDesc = false;
    query.inDesc = true;
    query.inResolution = true;
    return HitList(*this).search(query);
}

long EngineStore::listProduct(int product)
{
    IssueQuery query;
    query.psid = product;
    return HitList(*this).search(query);
}

long EngineStore::listPerson(int user)
{
    return HitList(*this).assignedTo(user);
}

} // namespace bench
