// Adds rows to one table, field by field, past the ordinary saves: for trials with many of them.
// Needs the table in sole use, without locks (SoleUse.h).
#pragma once

#include "db/TableUse.h"

#include <string_view>

namespace volume
{

class RowAdder
{
public:
    RowAdder(clsDB &db, schema::Table which) : m_rows(db, db.TablePath(which)) {}
    explicit operator bool() const { return bool(m_rows); }

    // A blank row with that number; what was begun before and not stored is forgotten.
    void begin(qint32 rowid);
    // Stored bytes, cut at the field's length.
    void number(const char *field, qint32 value) const;
    void text(const char *field, std::string_view value) const;
    void memo(const char *field, std::string_view value) const;
    bool store() { return storeNewRow(m_rows.handle()); }

private:
    clsDB::Handle of(const char *field) const;

    TableUse m_rows;
};

} // namespace volume
