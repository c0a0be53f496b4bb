// What every window that shows a report has: the grid and its order, finding, opening the record
// behind a row, printing and saving.
#pragma once

#include "common/ui/FormWindow.h"
#include "common/ui/frmFind.h"
#include "db/report/ReportRun.h"

#include <memory>

class ReportModel;
namespace Ui
{
class ReportWindow;
}

class ReportWindow : public FormWindow
{
    Q_OBJECT
public:
    ~ReportWindow() override;

    // Reads and shows the report anew; what it showed stays when it cannot be read.
    virtual void LoadData() = 0;
    virtual void SetUI();
    // From the selected row on; tells what is not found, and goes on from the top when asked to.
    void Find(const QString &strFind, bool bWholeWordOnly, bool bMatchCase, bool bDirectionUp);
    const ReportTable &report() const;
    QSize sizeHint() const override;

protected:
    // Fills a table that has its columns; nothing when it could not, which was told.
    using Walk = std::function<std::optional<qint32>(ReportTable &, const ReportRun::GoOn &)>;

    explicit ReportWindow(QWidget *parent);

    virtual QString title() const = 0;
    virtual bool landscape() const = 0;
    // Repeating values are left out, so that the rows cannot be sorted any more.
    virtual bool suppresses() const { return false; }
    virtual void openRecord(int row) = 0;

    // Nobody closes the window or begins anything else in it before this is done.
    void DisplayReportData(std::vector<ReportTable::Column> columns, const Walk &walk);
    std::unique_ptr<Ui::ReportWindow> ui;

private:
    void InitGrid(const std::vector<ReportTable::Column> &columns);
    std::optional<qint32> DisplayRowData(ReportTable &table, const Walk &walk);
    void sortBy(int column);
    void reload();
    void zoomIn();
    void openFind();
    bool findFrom(const frmFind::Request &request, int row);
    void saveAs();
    void print();

    ReportModel *m_model;
    frmFind *m_find = nullptr; // on first use
};
