// Asks which products and services of customers to list. Modal.
#pragma once

#include "db/report/ProductReportRun.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class frmPSFilterDlg;
}

class frmPSFilterDlg : public QDialog
{
    Q_OBJECT
public:
    explicit frmPSFilterDlg(QWidget *parent = nullptr);
    ~frmPSFilterDlg() override;

    // What was asked for, any subscription until the dialog was accepted.
    const ProductReportRun::Criteria &criteria() const { return m_criteria; }

    void accept() override;

private:
    void ResetValues() { m_criteria = {}; }

    std::unique_ptr<Ui::frmPSFilterDlg> ui;
    ProductReportRun::Criteria m_criteria;
};
