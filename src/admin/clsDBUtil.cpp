#include "admin/clsDBUtil.h"

#include "admin/frmDBMaint.h"
#include "common/base/Prompts.h"
#include "db/clsDB.h"

#include <QCoreApplication>

void clsDBUtil::DlgDBMaintenance(QWidget *owner, const QList<clsDBFile> &files)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("clsDBUtil", text); };
    if (!gDB.IsOpen()) {
        prompts::inform(tr("No database is currently open. See File menu."),
                        tr("No Database Open"));
        return;
    }
    frmDBMaint maintenance(owner);
    maintenance.Filenames(files);
    maintenance.exec();
}
