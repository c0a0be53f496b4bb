#include "reports/frmRptDisplayColumns.h"

#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/form/ListSinks.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "ui_frmRptDisplayColumns.h"

#include <QPushButton>

frmRptDisplayColumns::frmRptDisplayColumns(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmRptDisplayColumns>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::ReportDefinition);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    m_ui->buttonBox->button(QDialogButtonBox::Cancel)
        ->setObjectName(QStringLiteral("CancelButton"));
    connect(m_ui->lstRptCols, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

frmRptDisplayColumns::~frmRptDisplayColumns() = default;

void frmRptDisplayColumns::Init(const QString &sReportType, const QListWidget *shown)
{
    ListBoxSink offered(m_ui->lstRptCols);
    gDB.LBLoadRptColumns(offered, sReportType, QStringLiteral("D"));
    LB2LBRemoveItems(shown, m_ui->lstRptCols);
}

void frmRptDisplayColumns::addSelectedTo(QListWidget *list) const
{
    const QListWidget *offered = m_ui->lstRptCols;
    for (int row = 0; row < offered->count(); ++row)
        if (offered->item(row)->isSelected())
            lbAddItem(list, offered->item(row)->text(), lbItemID(offered, row));
}

void frmRptDisplayColumns::accept()
{
    if (m_ui->lstRptCols->selectedItems().isEmpty())
        prompts::warn(tr("Please select one or more columns to display before pressing OK."));
    else
        QDialog::accept();
}
