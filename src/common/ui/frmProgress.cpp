#include "common/ui/frmProgress.h"

#include "ui_frmProgress.h"

#include "common/base/Host.h"

frmProgress::frmProgress(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmProgress>())
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::NonModal);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmProgress::reject);
}

frmProgress::~frmProgress() = default;

void frmProgress::Init(const QString &title, const QString &message, bool bar, bool cancel)
{
    setWindowTitle(title);
    ui->lblMsg->setText(message);
    ui->pbar->setVisible(bar);
    ui->cmdCancel->setVisible(cancel);
    setWindowFlag(Qt::WindowCloseButtonHint, cancel);
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
    adjustSize();
}

void frmProgress::Display()
{
    m_bCancel = false;
    ui->cmdCancel->setEnabled(true);
    show();
    raise();
    ui->lblMsg->repaint();
    host().repaint();
}

void frmProgress::setPercent(int percent)
{
    // Told for each of a million rows; painting the same again would take longer than the work.
    if (percent < 0 || percent > 100 || percent == ui->pbar->value())
        return;
    ui->pbar->setValue(percent);
    ui->pbar->repaint();
}

void frmProgress::setMessage(const QString &message)
{
    ui->lblMsg->setText(message);
    ui->lblMsg->repaint();
}

void frmProgress::reject()
{
    if (ui->cmdCancel->isHidden())
        return;
    m_bCancel = true;
    ui->cmdCancel->setEnabled(false); // seen, though the operation may take a moment to stop
}
