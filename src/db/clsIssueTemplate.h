// The values of one issue template, for a new issue to start from. Read-only.
#pragma once

#include "db/RecColl.h"

class clsIssueTemplate
{
public:
    // True when the template exists and could be read; otherwise why not was told.
    bool Init(qint32 id);

    // Rowids of list entries and of a user, below 1 for none.
    qint32 PSId() const { return m_values.number(QStringLiteral("psid")); }
    qint32 AssignedTo() const { return m_values.number(QStringLiteral("assignedto")); }
    qint32 Priority() const { return m_values.number(QStringLiteral("priority")); }
    qint32 STATUS() const { return m_values.number(QStringLiteral("status")); }
    qint32 Category() const { return m_values.number(QStringLiteral("issuecat")); }
    QString ShortDesc() const { return m_values.text(QStringLiteral("shortdesc")); }
    QString Desc() const { return m_values.text(QStringLiteral("desc")); }
    QString Resolution() const { return m_values.text(QStringLiteral("resolution")); }
    QString custom1() const { return m_values.text(QStringLiteral("custom1")); }
    QString custom2() const { return m_values.text(QStringLiteral("custom2")); }

private:
    RecColl m_values;
};
