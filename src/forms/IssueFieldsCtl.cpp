#include "forms/IssueFieldsCtl.h"

#include "ui_IssueFieldsCtl.h"

namespace
{

constexpr int kDateCharacters = 16;
constexpr int kPageCharacters = 150;

} // namespace

IssueFieldsCtl::IssueFieldsCtl(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::IssueFieldsCtl>())
{
    m_ui->setupUi(this);
    // However wide the window, no field is much wider than what goes into it.
    const int character = fontMetrics().averageCharWidth();
    for (QLineEdit *box : {m_ui->txtDateSubmit, m_ui->txtDateResponse, m_ui->txtDateResolution})
        box->setFixedWidth(kDateCharacters * character);
    setMaximumWidth(kPageCharacters * character);
}

IssueFieldsCtl::~IssueFieldsCtl() = default;

void IssueFieldsCtl::leaveOutCustomerAndDates()
{
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->lblCustomerName, m_ui->lblCustomer, m_ui->cmdCustomer, m_ui->lblDateSubmit,
             m_ui->txtDateSubmit, m_ui->cmdCalendar_0, m_ui->lblDateResponse, m_ui->txtDateResponse,
             m_ui->cmdCalendar_1, m_ui->lblDateResolution, m_ui->txtDateResolution,
             m_ui->cmdCalendar_2})
        delete control;
}
