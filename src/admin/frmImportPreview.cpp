#include "admin/frmImportPreview.h"

#include "admin/ImportPreview.h"
#include "common/base/HelpTopics.h"
#include "ui_frmImportPreview.h"

#include <QScreen>

frmImportPreview::frmImportPreview(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmImportPreview>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::DataImport);
    resize(screen()->availableSize() * 9 / 10);
    connect(ui->cmdContinue, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmImportPreview::~frmImportPreview() = default;

void frmImportPreview::showRowsOf(const QTableView &grid)
{
    showPreviewRows(ui->grdPreview, grid.model());
    ui->grdPreview->setCurrentIndex(grid.currentIndex());
}

bool PreviewData(const QTableView &grid, QWidget *parent)
{
    frmImportPreview window(parent);
    window.showRowsOf(grid);
    return window.exec() == QDialog::Accepted;
}
