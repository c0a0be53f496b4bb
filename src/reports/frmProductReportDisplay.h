// The products and services that customers hold, by the criteria it was opened with.
#pragma once

#include "db/report/ProductReportRun.h"
#include "reports/ReportWindow.h"

class frmProductReportDisplay : public ReportWindow
{
    Q_OBJECT
public:
    explicit frmProductReportDisplay(QWidget *parent = nullptr);

    void Init(const ProductReportRun::Criteria &criteria);
    void LoadData() override;

protected:
    QString title() const override;
    bool landscape() const override { return true; }
    void openRecord(int row) override;

private:
    ProductReportRun::Criteria m_criteria;
};
