// What opens reports: their list, their definitions and their results.
#include "shell/frmMain.h"

#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "reports/frmReportDef.h"
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

void frmMain::ShowReport(qint32 /*rowid*/) {}

void frmMain::ShowProductReport() {}
