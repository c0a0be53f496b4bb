#include "common/ui/Switchboard.h"

#include <QWidget>

namespace
{

class QuietSwitchboard : public Switchboard
{
public:
    void ShowCustomer(qint32, bool) override {}
    void ShowPS(qint32, qint32, bool) override {}
    void ShowIssue(qint32, qint32, bool, qint32) override {}
    void ShowReport(qint32) override {}
    void ShowProductReport() override {}
    void ShowReportDef(qint32, const QString &) override {}
    void NotifyReportList(qint32) override {}
    bool GetIssueTemplateID(qint32 &) override { return false; }
    void NotifyCustomer(qint32, int, qint32) override {}
    void LookupCustomer() override {}
    void NewCustomer() override {}
    void EditCategory(qint32) override {}
    QString GetShortDateFromPopupCalendar(const QString &) override { return {}; }
    bool SendMail(const QString &, const QString &, const QString &) override { return false; }
    // The window was handed over, so it may not be leaked.
    void showChild(QWidget *form) override { form->deleteLater(); }
    void showHelp(int) override {}
};

Switchboard *&installed()
{
    static Switchboard *board = nullptr;
    return board;
}

} // namespace

Switchboard &switchboard()
{
    static QuietSwitchboard quiet;
    return installed() != nullptr ? *installed() : quiet;
}

void installSwitchboard(Switchboard *board)
{
    installed() = board;
}
