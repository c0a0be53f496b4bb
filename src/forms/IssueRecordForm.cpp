#include "forms/IssueRecordForm.h"

#include "db/LookupTypes.h"
#include "forms/IssueFieldsCtl.h"
#include "ui_IssueFieldsCtl.h"

#include <QCoreApplication>
#include <QPlainTextEdit>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(IssueRecordForm)
};

constexpr int kRuleWidth = 80;

} // namespace

template <class Form>
void IssueRecordForm<Form>::bindAll()
{
    const Ui::IssueFieldsCtl &ui = m_fields->ui();
    this->bindLookup(QStringLiteral("psid"), ui.cboPS, lookup_type::Products);
    this->bind(QStringLiteral("shortdesc"), ui.txtShortDesc);
    this->bindUsers(QStringLiteral("assignedto"), ui.cboAssignedTo);
    this->bindLookup(QStringLiteral("priority"), ui.cboPriority, lookup_type::IssuePriorities);
    this->bindLookup(QStringLiteral("status"), ui.cboStatus, lookup_type::IssueStatuses);
    this->bindLookup(QStringLiteral("issuecat"), ui.cboIssueCategory, lookup_type::IssueCategories);
    this->bindText(QStringLiteral("custom1"), ui.txtCust1, lookup_type::IssueCustom1);
    this->bindText(QStringLiteral("custom2"), ui.txtCust2, lookup_type::IssueCustom2);
    this->bind(QStringLiteral("desc"), m_txtDesc);
    this->bind(QStringLiteral("resolution"), m_txtResolution);

    this->bindListEditor(ui.cmdCatPS, ui.cboPS, lookup_type::Products);
    this->bindListEditor(ui.cmdCatPriority, ui.cboPriority, lookup_type::IssuePriorities);
    this->bindListEditor(ui.cmdCatStatus, ui.cboStatus, lookup_type::IssueStatuses);
    this->bindListEditor(ui.cmdCatIssueCategory, ui.cboIssueCategory, lookup_type::IssueCategories);
    this->bindListEditor(ui.cmdCust1Cat, ui.txtCust1, lookup_type::IssueCustom1);
    this->bindListEditor(ui.cmdCust2Cat, ui.txtCust2, lookup_type::IssueCustom2);
}

template <class Form>
void IssueRecordForm<Form>::bindPage(QTabWidget *tabs, QWidget *page, QPlainTextEdit *memo,
                                     QPushButton *stamp)
{
    QObject::connect(stamp, &QPushButton::clicked, memo, [memo] { insertStamp(memo); });
    QObject::connect(tabs, &QTabWidget::currentChanged, memo, [tabs, page, memo] {
        if (tabs->currentWidget() == page && memo->isEnabled())
            memo->setFocus();
    });
}

template <class Form>
QString IssueRecordForm<Form>::mainLines() const
{
    const Ui::IssueFieldsCtl &ui = m_fields->ui();
    return line()(Words::tr("Short Description:"), ui.txtShortDesc->text()) +
           line()(Words::tr("Product/Service:"), ui.cboPS->currentText()) +
           line()(Words::tr("Status:"), ui.cboStatus->currentText()) +
           line()(Words::tr("Priority:"), ui.cboPriority->currentText()) +
           line()(Words::tr("Assigned To::"), ui.cboAssignedTo->currentText());
}

template <class Form>
QString IssueRecordForm<Form>::customLines() const
{
    const Ui::IssueFieldsCtl &ui = m_fields->ui();
    return line()(ui.lblCustom1, ui.txtCust1->currentText()) +
           line()(ui.lblCustom2, ui.txtCust2->currentText()) +
           line()(ui.lblCat, ui.cboIssueCategory->currentText());
}

template <class Form>
QString IssueRecordForm<Form>::textBlocks() const
{
    return Words::tr("Description:") + u'\n' + m_txtDesc->toPlainText() + u'\n' + rule() +
           Words::tr("Resolution:") + u'\n' + m_txtResolution->toPlainText() + u'\n' + rule();
}

template <class Form>
QString IssueRecordForm<Form>::rule()
{
    return clsSystem::PadChar({}, kRuleWidth, QStringLiteral("-"), clsSystem::Side::Behind) + u'\n';
}

template class IssueRecordForm<RecordForm>;
template class IssueRecordForm<CustomerItemForm>;
