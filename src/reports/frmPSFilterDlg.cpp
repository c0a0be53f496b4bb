#include "reports/frmPSFilterDlg.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/form/ListSinks.h"
#include "common/form/SetLabels.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "ui_frmPSFilterDlg.h"

#include <QPushButton>

namespace
{

constexpr qint32 kProducts = 2; // the lookup list
constexpr qint32 kBlank = -1;
constexpr qint32 kYes = 1;
constexpr qint32 kNo = 0;

} // namespace

frmPSFilterDlg::frmPSFilterDlg(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmPSFilterDlg>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::ReportDisplay);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    const clsDB::TellOnce tellOnce(gDB);
    SetLabels(this, schema::table(schema::Table::Customer2PS).dataFile());
    ComboSink products(ui->cboPS);
    gDB.LoadCbo(products, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                QStringLiteral("type"), kProducts, true, true);
    cboAddItem(ui->ComboIsActive, {}, kBlank);
    cboAddItem(ui->ComboIsActive, tr("Yes"), kYes);
    cboAddItem(ui->ComboIsActive, tr("No"), kNo);
}

frmPSFilterDlg::~frmPSFilterDlg() = default;

void frmPSFilterDlg::accept()
{
    ResetValues();
    m_criteria.productServiceId = cboGetItemID(ui->cboPS);
    m_criteria.isActive = cboGetItemID(ui->ComboIsActive);
    m_criteria.custom1 = clsSystem::Trim(ui->TextCustom1->text());
    m_criteria.custom2 = clsSystem::Trim(ui->TextCustom2->text());
    QDialog::accept();
}
