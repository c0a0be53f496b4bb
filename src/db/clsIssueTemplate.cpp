#include "db/clsIssueTemplate.h"

#include "common/base/Failure.h"
#include "db/clsDB.h"

bool clsIssueTemplate::Init(qint32 id)
{
    return guarded("clsIssueTemplate_Init", false, [&] {
        const schema::TableInfo &table = schema::table(schema::Table::IssuesTemplates);
        const QString path = gDB.IssuesTemplatesTable();
        m_values = RecColl(path, table.dataFile(), id, QStringLiteral("_issuetemplate"));
        return gDB.CheckIfRecExists(path, table.dataFile(), id) && gDB.ReadRecord(m_values);
    });
}
