#include "forms/TemplateList.h"

#include "common/form/ListSinks.h"
#include "common/ui/ListView.h"

#include <QCoreApplication>

namespace
{

const QString EnableParam = QStringLiteral("ENABLE_ISSUE_TEMPLATES");

} // namespace

namespace templates
{

bool enabled()
{
    return gDB.GetParamValue(EnableParam) == u"1";
}

void setEnabled(bool enabled)
{
    const QString value = enabled ? QStringLiteral("1") : QStringLiteral("0");
    if (gDB.GetParamValue(EnableParam) != value)
        gDB.SetParamValue(EnableParam, value);
}

clsDB::ListTable table()
{
    return {schema::table(schema::Table::IssuesTemplates).dataFile(), gDB.IssuesTemplatesTable(),
            QStringLiteral("rowid"), QStringLiteral("name"), 0};
}

void setUp(ListView *list)
{
    list->setColumns({{QCoreApplication::translate("templates", "Issue Templates"), {}, 240}});
}

void addAll(ListView *list)
{
    ListViewSink sink(list);
    const clsDB::ListTable from = table();
    gDB.LoadLV(sink, from.path, from.keyField, from.textField, from.type);
}

} // namespace templates
