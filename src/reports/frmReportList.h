// All saved reports, and what is done with them: viewed, edited, copied, new ones begun.
#pragma once

#include "common/ui/FormWindow.h"

#include <memory>

class TableUse;
namespace Ui
{
class frmReportList;
}

class frmReportList : public FormWindow
{
    Q_OBJECT
public:
    explicit frmReportList(QWidget *parent = nullptr);
    ~frmReportList() override;

    void Init();
    // Reads the list anew. That report is selected then; else what was selected, else the first.
    void LoadData(qint32 select = -1);
    void SetUI();

    QSize sizeHint() const override;

private:
    void setUpList();
    void setUpNewMenu();
    void connectControls();
    void addRows(TableUse &reports);
    qint32 selectedReport() const; // 0: none
    void newReport(const QString &type);
    void view();
    void edit();
    void copy();

    std::unique_ptr<Ui::frmReportList> m_ui;
};
