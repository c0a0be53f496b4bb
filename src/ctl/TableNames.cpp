#include "ctl/TableNames.h"

namespace ctl
{

namespace
{

struct TableName {
    const char *name;
    schema::Table table;
};

constexpr TableName TableNames[] = {
    {"customers", schema::Table::Customer},
    {"subscriptions", schema::Table::Customer2PS},
    {"issues", schema::Table::Issues},
    {"actions", schema::Table::IssuesActions},
    {"templates", schema::Table::IssuesTemplates},
    {"users", schema::Table::User},
    {"reports", schema::Table::Report},
    {"lookups", schema::Table::Category},
    {"counters", schema::Table::LastID},
    {"parameters", schema::Table::Param},
};

} // namespace

QStringList tableNames()
{
    QStringList names;
    for (const TableName &entry : TableNames)
        names << QLatin1String(entry.name);
    return names;
}

const schema::TableInfo *tableNamed(const QString &name)
{
    for (const TableName &entry : TableNames)
        if (name.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0)
            return &schema::table(entry.table);
    for (const schema::TableInfo &table : schema::tables())
        if (name.compare(table.baseName, Qt::CaseInsensitive) == 0 ||
            name.compare(table.dataFile(), Qt::CaseInsensitive) == 0)
            return &table;
    return nullptr;
}

} // namespace ctl
