#include "common/ui/frmRptOption.h"

#include "ui_frmRptOption.h"

#include "common/base/HelpTopics.h"
#include "common/base/Preferences.h"
#include "common/ui/Icons.h"

namespace
{

const QString Orientation = QStringLiteral("RptPageOrientation");
const QString RowOnly = QStringLiteral("RptPrintSingleRowOnly");
const QString DateStamp = QStringLiteral("RptPrintDateTime");

} // namespace

frmRptOption::frmRptOption(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmRptOption>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::Printing);
    setWindowIcon(icon(QStringLiteral("print")));
    connect(ui->OKButton, &QPushButton::clicked, this, &frmRptOption::accept);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    SetPageOrientation(GetPrefLong(Orientation));
    const bool one = GetPrefLong(RowOnly) == 1;
    (one ? ui->optWhatToPrintSelected : ui->optWhatToPrintView)->setChecked(true);
    ui->ckDT->setChecked(GetPrefLong(DateStamp) != 0);
}

frmRptOption::~frmRptOption() = default;

void frmRptOption::setTitle(const QString &title)
{
    m_proposed = title;
    ui->txtTitle->setText(title);
    ui->txtTitle->setCursorPosition(0);
}

void frmRptOption::setRowSelected(bool selected)
{
    ui->optWhatToPrintSelected->setEnabled(selected);
    if (!selected)
        ui->optWhatToPrintView->setChecked(true);
}

void frmRptOption::RestoreRptTitle(const QString &sTitleKey)
{
    m_sTitleKey = sTitleKey;
    const QString kept = sTitleKey.isEmpty() ? QString() : GetPrefStr(sTitleKey);
    if (!kept.isEmpty())
        ui->txtTitle->setText(kept);
}

void frmRptOption::SetPageOrientation(int eOrientation)
{
    (eOrientation == 1 ? ui->optOrientationPortrait : ui->optOrientationLandscape)
        ->setChecked(true);
}

printing::ListOptions frmRptOption::options() const
{
    return {.title = ui->txtTitle->text(),
            .orientation = m_nOrientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait,
            .selectedOnly = m_nRowOnly == 1,
            .dateStamp = m_nDTStamp != 0};
}

void frmRptOption::accept()
{
    m_nOrientation = ui->optOrientationLandscape->isChecked() ? 2 : 1;
    m_nRowOnly = ui->optWhatToPrintView->isChecked() ? 0 : 1;
    m_nDTStamp = ui->ckDT->isChecked() ? 1 : 0;
    keepSettings();
    m_bOK = true;
    QDialog::accept();
}

void frmRptOption::keepSettings() const
{
    SetPrefLong(Orientation, m_nOrientation);
    if (ui->optWhatToPrintSelected->isEnabled()) // else there was no choice
        SetPrefLong(RowOnly, m_nRowOnly);
    SetPrefLong(DateStamp, m_nDTStamp);
    const QString title = ui->txtTitle->text();
    if (!m_sTitleKey.isEmpty())
        SetPrefStr(m_sTitleKey, title == m_proposed ? QString() : title);
}
