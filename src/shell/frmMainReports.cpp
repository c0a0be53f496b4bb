// What opens reports: their list, their definitions and their results.
#include "shell/frmMain.h"

#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "reports/frmProductReportDisplay.h"
#include "reports/frmPSFilterDlg.h"
#include "reports/frmReportDef.h"
#include "reports/frmReportDisplay.h"
#include "reports/frmReportList.h"

namespace
{

const QString ListTag = QStringLiteral("REPORTS");

bool reportExists(qint32 rowid)
{
    return gDB.CheckIfRecExists(gDB.ReportTable(), schema::table(schema::Table::Report).dataFile(),
                                rowid);
}

} // namespace

void frmMain::Reports()
{
    if (IsFormLoaded(ListTag)) {
        BringFormToTop(ListTag);
        return;
    }
    auto list = std::make_unique<frmReportList>();
    list->Init();
    showChild(list.release());
}

void frmMain::ShowReportDef(qint32 rowid, const QString &type)
{
    const QString tag = u"REPORTDEF" + QString::number(rowid);
    if (IsFormLoaded(tag)) {
        BringFormToTop(tag);
        return;
    }
    if (rowid > 0 && !reportExists(rowid))
        return;
    auto form = std::make_unique<frmReportDef>();
    form->setReportType(type);
    form->Init(rowid, rowid < 1);
    showChild(form.release());
}

void frmMain::NotifyReportList(qint32 rowid)
{
    if (auto *list = qobject_cast<frmReportList *>(GetFormWithTag(ListTag)))
        list->LoadData(rowid);
}

// The window is there before the report runs, so that it is found when it is asked for once more.
void frmMain::ShowReport(qint32 rowid)
{
    const QString tag = frmReportDisplay::tagOf(rowid);
    if (IsFormLoaded(tag)) {
        BringFormToTop(tag);
        return;
    }
    if (!reportExists(rowid))
        return;
    auto *form = new frmReportDisplay;
    form->setTagText(tag);
    showChild(form);
    form->Init(rowid);
}

void frmMain::ShowProductReport()
{
    frmPSFilterDlg dialog(this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    auto *form = new frmProductReportDisplay;
    showChild(form);
    form->Init(dialog.criteria());
}
