#include "search/frmLookupCustomer.h"

#include "common/base/HelpTopics.h"
#include "common/base/Numbers.h"
#include "common/base/Preferences.h"
#include "common/base/Prompts.h"
#include "common/ui/Controls.h"
#include "db/clsCustomLabels.h"
#include "db/clsDB.h"
#include "ui_frmLookupCustomer.h"

#include <QPushButton>

frmLookupCustomer::frmLookupCustomer(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmLookupCustomer>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::LookupCustomer);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    loadTypes();
    cboSelectAtIndex(ui->cboType, 0);
    cboSelectAtID(ui->cboType, GetPrefLong(QStringLiteral("LastCustSearchType")));
    ui->txtSearch->setText(GetPrefStr(QStringLiteral("LastCustSearchStr")));
    ui->txtSearch->selectAll();
    ui->txtSearch->setFocus();
}

frmLookupCustomer::~frmLookupCustomer() = default;

void frmLookupCustomer::loadTypes()
{
    const clsDB::TellOnce tellOnce(gDB);
    const auto label = [](const char *field) {
        return clsCustomLabels::ShortName(
            CustomLabels.GetCustomerLabelName(QString::fromLatin1(field), false));
    };
    const QString startsWith = tr(" starts with or is:");
    cboAddItem(ui->cboType, tr("Primary Contact's ") + label("lastname") + startsWith,
               SearchLastName);
    cboAddItem(ui->cboType, label("company") + startsWith, SearchCompany);
    cboAddItem(ui->cboType, label("custno") + startsWith, SearchNumber);
    cboAddItem(ui->cboType, label("workphone") + startsWith, SearchWorkPhone);
    cboAddItem(ui->cboType, tr("Phone/Address/City/Zip contains:"), SearchAddress);
    cboAddItem(ui->cboType, tr("Customer ID is:"), SearchId);
}

void frmLookupCustomer::accept()
{
    m_SearchType = cboGetItemID(ui->cboType);
    m_SearchStr = ui->txtSearch->text();
    if (m_SearchType == SearchId && !IsNumeric(m_SearchStr)) {
        refuse(tr("Customer ID must be numeric!"));
        return;
    }
    // An empty search lists every customer, and so does one of blanks.
    if (m_SearchStr.trimmed().isEmpty() && !gDB.Perm_ReportsNoMsg()) {
        refuse(tr("'Search String:' must be entered. Request 'Edit Report' permission from your "
                  "administrator to enable query without search string."));
        return;
    }
    SetPrefStr(QStringLiteral("LastCustSearchStr"), m_SearchStr);
    SetPrefLong(QStringLiteral("LastCustSearchType"), m_SearchType);
    QDialog::accept();
}

void frmLookupCustomer::refuse(const QString &reason)
{
    prompts::warn(reason);
    ui->txtSearch->setFocus();
    ui->txtSearch->selectAll();
}
