#include "support/RecordingSwitchboard.h"

RecordingSwitchboard::~RecordingSwitchboard()
{
    installSwitchboard(nullptr);
    for (const QPointer<QWidget> &child : std::as_const(m_children))
        delete child.data();
}

void RecordingSwitchboard::ShowCustomer(qint32 rowid, bool bEdit)
{
    m_calls.append(QStringLiteral("ShowCustomer %1 %2")
                       .arg(rowid)
                       .arg(bEdit ? QLatin1String("true") : QLatin1String("false")));
}

void RecordingSwitchboard::ShowPS(qint32 rowid, qint32 custid, bool bEdit)
{
    m_calls.append(QStringLiteral("ShowPS %1 %2 %3")
                       .arg(rowid)
                       .arg(custid)
                       .arg(bEdit ? QLatin1String("true") : QLatin1String("false")));
}

void RecordingSwitchboard::ShowIssue(qint32 rowid, qint32 custid, bool bEdit, qint32 templateId)
{
    m_calls.append(QStringLiteral("ShowIssue %1 %2 %3 %4")
                       .arg(rowid)
                       .arg(custid)
                       .arg(bEdit ? QLatin1String("true") : QLatin1String("false"))
                       .arg(templateId));
}

void RecordingSwitchboard::ShowReport(qint32 rowid)
{
    m_calls.append(QStringLiteral("ShowReport %1").arg(rowid));
}

void RecordingSwitchboard::ShowProductReport()
{
    m_calls.append(QStringLiteral("ShowProductReport"));
}

void RecordingSwitchboard::ShowReportDef(qint32 rowid, const QString &type)
{
    m_calls.append(QStringLiteral("ShowReportDef %1 %2").arg(rowid).arg(type));
}

void RecordingSwitchboard::NotifyReportList(qint32 rowid)
{
    m_calls.append(QStringLiteral("NotifyReportList %1").arg(rowid));
}

bool RecordingSwitchboard::GetIssueTemplateID(qint32 &id)
{
    m_calls.append(QStringLiteral("GetIssueTemplateID"));
    id = chosenTemplate.value_or(id);
    return chosenTemplate.has_value();
}

void RecordingSwitchboard::NotifyCustomer(qint32 custid, int what, qint32 id)
{
    m_calls.append(QStringLiteral("NotifyCustomer %1 %2 %3").arg(custid).arg(what).arg(id));
}

void RecordingSwitchboard::LookupCustomer()
{
    m_calls.append(QStringLiteral("LookupCustomer"));
}

void RecordingSwitchboard::NewCustomer()
{
    m_calls.append(QStringLiteral("NewCustomer"));
}

void RecordingSwitchboard::EditCategory(qint32 type)
{
    m_calls.append(QStringLiteral("EditCategory %1").arg(type));
    if (onEditCategory)
        onEditCategory(type);
}

QString RecordingSwitchboard::GetShortDateFromPopupCalendar(const QString &start)
{
    m_calls.append(QLatin1String("GetShortDateFromPopupCalendar ") + start);
    return pickedDate;
}

bool RecordingSwitchboard::SendMail(const QString &to, const QString &subject, const QString &body)
{
    m_mails.append({to, subject, body});
    return sends;
}

void RecordingSwitchboard::showChild(QWidget *form)
{
    form->setAttribute(Qt::WA_DeleteOnClose);
    m_children.append(form);
    form->show();
}

void RecordingSwitchboard::showHelp(int topic)
{
    m_calls.append(QStringLiteral("showHelp %1").arg(topic));
}
