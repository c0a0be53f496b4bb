// The rows that the import wizard is about to bring in, in a window as large as the screen allows:
// a customer has more columns than the wizard's page can show. Modal.
#pragma once

#include <QDialog>

#include <memory>

class QTableView;
namespace Ui
{
class frmImportPreview;
}

class frmImportPreview : public QDialog
{
    Q_OBJECT
public:
    explicit frmImportPreview(QWidget *parent = nullptr);
    ~frmImportPreview() override;

    // The rows of this grid, which has to outlive the window.
    void showRowsOf(const QTableView &grid);

private:
    std::unique_ptr<Ui::frmImportPreview> ui;
};

// Shows the rows of the wizard's grid; true when the user pressed "Continue".
bool PreviewData(const QTableView &grid, QWidget *parent);
