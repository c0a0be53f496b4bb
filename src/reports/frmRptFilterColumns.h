// Picks one criterion of a report: a column, whether it is or is not, and an entry of the column's
// lookup list. Modal.
#pragma once

#include <QDialog>

#include <memory>

class QListWidget;
namespace Ui
{
class frmRptFilterColumns;
}

class frmRptFilterColumns : public QDialog
{
    Q_OBJECT
public:
    // What was picked, for after the dialog was accepted.
    qint32 m_nColID = -1;
    qint32 m_nValID = -1;
    QString m_sOper; // "=" or "#" (is not)
    QString m_sCol;  // as they are shown
    QString m_sVal;

    explicit frmRptFilterColumns(QWidget *parent = nullptr);
    ~frmRptFilterColumns() override;

    // Offers the columns of that report type but for those that the list has already.
    void Init(const QString &sReportType, const QListWidget *shown);

    void accept() override; // refuses without a column or a value

private:
    void loadValues();

    std::unique_ptr<Ui::frmRptFilterColumns> m_ui;
};
