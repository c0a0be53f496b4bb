#include "db/search/ShownNames.h"

#include "common/base/clsSystem.h"
#include "db/FieldText.h"

#include <limits>

using namespace norvane::engine;

namespace
{

QString trimmedText(Handle field)
{
    return clsSystem::Trim(FieldText(field));
}

} // namespace

CustomerNames::CustomerNames(Handle customers, bool nameAlone)
    : m_customers(customers),
      m_tag(d4tag(customers, "rowid")),
      m_rowid(d4field(customers, "rowid")),
      m_firstname(d4field(customers, "firstname")),
      m_lastname(d4field(customers, "lastname")),
      m_company(d4field(customers, "company")),
      m_nameAlone(nameAlone)
{
}

QString CustomerNames::of(qint32 custid)
{
    auto known = m_known.constFind(custid);
    if (known == m_known.constEnd())
        known = m_known.insert(custid, find(custid) ? nameHere() : QString());
    return *known;
}

// Rows mostly stand in the order of their identifiers, so a guess from the one before spares the
// way through the tag; only a row with that identifier counts.
bool CustomerNames::find(qint32 custid)
{
    const qint64 guess = custid + m_offset;
    if (guess > 0 && guess <= std::numeric_limits<std::uint32_t>::max() &&
        d4go(m_customers, static_cast<std::uint32_t>(guess)) == r4success &&
        !d4deleted(m_customers) && f4long(m_rowid) == custid)
        return true;
    d4tagSelect(m_customers, m_tag);
    if (d4seekDouble(m_customers, custid) != r4success)
        return false;
    m_offset = qint64{d4recNo(m_customers)} - custid;
    return true;
}

QString CustomerNames::nameHere() const
{
    return m_nameAlone ? clsSystem::MakeFullName(trimmedText(m_firstname), trimmedText(m_lastname))
                       : companyAndName();
}

QString CustomerNames::companyAndName() const
{
    return composed(trimmedText(m_company),
                    clsSystem::MakeFullName(trimmedText(m_firstname), trimmedText(m_lastname)));
}

QString CustomerNames::composed(const QString &company, const QString &name)
{
    if (company.isEmpty())
        return name;
    return name.isEmpty() ? company : QString(company % u" (" % name % u')');
}

CustomerDetails::CustomerDetails(clsDB::Handle customers, CategoryNames &entries)
    : CustomerNames(customers, false),
      m_entries(entries),
      m_city(d4field(customers, "city")),
      m_state(d4field(customers, "state")),
      m_phone(d4field(customers, "workphone"))
{
}

const QString &CustomerDetails::of(qint32 custid)
{
    auto known = m_known.constFind(custid);
    if (known == m_known.constEnd())
        known = m_known.insert(custid, find(custid) ? detailHere() : QString());
    return *known;
}

QString CustomerDetails::detailHere()
{
    QStringList parts{companyAndName(), trimmedText(m_city)};
    if (const qint32 state = f4long(m_state); state > 0)
        parts.append(m_entries.of(state));
    parts.append(trimmedText(m_phone));
    parts.removeAll(QString());
    return parts.join(u", ");
}
