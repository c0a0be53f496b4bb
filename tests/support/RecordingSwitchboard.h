// A switchboard that notes what the screens ask for. Installed while it lives. Windows handed over
// are shown on their own, and closed at the end.
#pragma once

#include "common/ui/Switchboard.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

class RecordingSwitchboard : public Switchboard
{
public:
    struct Mail {
        QString to;
        QString subject;
        QString body;
    };

    RecordingSwitchboard() { installSwitchboard(this); }
    ~RecordingSwitchboard() override;
    RecordingSwitchboard(const RecordingSwitchboard &) = delete;
    RecordingSwitchboard &operator=(const RecordingSwitchboard &) = delete;

    // "ShowCustomer 42 false", "ShowPS -1 42 true", "ShowIssue -1 42 true -1",
    // "NotifyCustomer 42 1 7", "LookupCustomer", "EditCategory 3", "showHelp 1300", in the order
    // called.
    const QStringList &calls() const { return m_calls; }
    void forget() { m_calls.clear(); }
    const QList<Mail> &mails() const { return m_mails; }
    const QList<QPointer<QWidget>> &children() const { return m_children; }
    // Stands for what a list editor does while it is open.
    std::function<void(qint32 type)> onEditCategory;
    // The template that is chosen for every new issue; nothing: the choice is cancelled.
    std::optional<qint32> chosenTemplate;
    // Whether a mail program takes what is sent.
    bool sends = true;
    // The date that is picked from every calendar.
    QString pickedDate;

    void ShowCustomer(qint32 rowid, bool bEdit) override;
    void ShowPS(qint32 rowid, qint32 custid, bool bEdit) override;
    void ShowIssue(qint32 rowid, qint32 custid, bool bEdit, qint32 templateId) override;
    void ShowReport(qint32 rowid) override;
    void ShowProductReport() override;
    void ShowReportDef(qint32 rowid, const QString &type) override;
    void NotifyReportList(qint32 rowid) override;
    bool GetIssueTemplateID(qint32 &id) override;
    void NotifyCustomer(qint32 custid, int what, qint32 id) override;
    void LookupCustomer() override;
    void NewCustomer() override;
    void EditCategory(qint32 type) override;
    QString GetShortDateFromPopupCalendar(const QString &start) override;
    bool SendMail(const QString &to, const QString &subject, const QString &body) override;
    void showChild(QWidget *form) override;
    void showHelp(int topic) override;

private:
    QStringList m_calls;
    QList<Mail> m_mails;
    QList<QPointer<QWidget>> m_children;
};
