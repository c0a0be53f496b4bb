#include "db/volume/RowAdder.h"

using namespace norvane::engine;

namespace volume
{

void RowAdder::begin(qint32 rowid)
{
    d4appendStartVB(m_rows.handle(), 0);
    d4blank(m_rows.handle());
    number("rowid", rowid);
}

void RowAdder::number(const char *field, qint32 value) const
{
    f4assignLong(of(field), value);
}

void RowAdder::text(const char *field, std::string_view value) const
{
    f4assignNVB(of(field), value, static_cast<std::uint32_t>(value.size()));
}

void RowAdder::memo(const char *field, std::string_view value) const
{
    if (!value.empty())
        f4memoAssignN(of(field), value, static_cast<std::uint32_t>(value.size()));
}

clsDB::Handle RowAdder::of(const char *field) const
{
    return d4field(m_rows.handle(), field);
}

} // namespace volume
