// Picks columns for a report to display. Modal.
#pragma once

#include <QDialog>

#include <memory>

class QListWidget;
namespace Ui
{
class frmRptDisplayColumns;
}

class frmRptDisplayColumns : public QDialog
{
    Q_OBJECT
public:
    explicit frmRptDisplayColumns(QWidget *parent = nullptr);
    ~frmRptDisplayColumns() override;

    // Offers the columns of that report type but for those that the list has already.
    void Init(const QString &sReportType, const QListWidget *shown);
    // Appends what was selected, in the order of the offer.
    void addSelectedTo(QListWidget *list) const;

    void accept() override; // refuses while nothing is selected

private:
    std::unique_ptr<Ui::frmRptDisplayColumns> m_ui;
};
