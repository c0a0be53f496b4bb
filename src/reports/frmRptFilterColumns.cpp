#include "reports/frmRptFilterColumns.h"

#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/form/ListSinks.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "ui_frmRptFilterColumns.h"

#include <QPushButton>

frmRptFilterColumns::frmRptFilterColumns(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptFilterColumns>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::ReportDefinition);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)
        ->setObjectName(QStringLiteral("CancelButton"));
    connect(m_ui->cboCols, &QComboBox::currentIndexChanged, this, &frmRptFilterColumns::loadValues);
}

frmRptFilterColumns::~frmRptFilterColumns() = default;

void frmRptFilterColumns::Init(const QString &sReportType, const QListWidget *shown)
{
    m_ui->optOper_0->setChecked(true);
    ComboSink offered(m_ui->cboCols);
    gDB.LBLoadRptColumns(offered, sReportType, QStringLiteral("F"));
    LB2LBRemoveItems(shown, m_ui->cboCols);
    m_ui->cboCols->setFocus();
}

void frmRptFilterColumns::loadValues()
{
    ComboSink values(m_ui->cboValues);
    values.clear();
    const qint32 column = cboGetItemID(m_ui->cboCols);
    if (column > 0)
        gDB.LoadCbo(values, gDB.CategoryTable(), QStringLiteral("rowid"), QStringLiteral("desc"),
                    QStringLiteral("type"), gDB.RptFilterGetCatType(column));
}

void frmRptFilterColumns::accept()
{
    m_nColID = cboGetItemID(m_ui->cboCols);
    m_nValID = cboGetItemID(m_ui->cboValues);
    if (m_nColID < 1) {
        prompts::warn(tr("Please select a Column."));
        return;
    }
    if (m_nValID < 1) {
        prompts::warn(tr("Please select Value."));
        return;
    }
    m_sOper = m_ui->optOper_1->isChecked() ? QStringLiteral("#") : QStringLiteral("=");
    m_sCol = m_ui->cboCols->currentText();
    m_sVal = m_ui->cboValues->currentText();
    QDialog::accept();
}
