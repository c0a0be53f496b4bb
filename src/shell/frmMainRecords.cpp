// What opens the records that belong to a customer, and the templates of issues.
#include "shell/frmMain.h"

#include "common/ui/FormWindow.h"
#include "db/clsDB.h"
#include "forms/frmEditIssueTemplates.h"
#include "forms/frmIssue.h"
#include "forms/frmIssueTemplate.h"
#include "forms/frmPS.h"
#include "forms/frmSelectIssueTemplate.h"

namespace
{

// Raises the window of that tag; false when there is none.
bool raised(const QString &tag)
{
    const bool loaded = IsFormLoaded(tag);
    if (loaded)
        BringFormToTop(tag);
    return loaded;
}

// Tells when the record has gone.
bool exists(schema::Table which, qint32 rowid)
{
    return gDB.CheckIfRecExists(gDB.TablePath(which), schema::table(which).dataFile(), rowid);
}

} // namespace

void frmMain::ShowPS(qint32 rowid, qint32 custid, bool bEdit)
{
    if (custid < 1 || raised(u'P' + QString::number(rowid)))
        return;
    if (!exists(schema::Table::Customer, custid) ||
        (rowid > 0 && !exists(schema::Table::Customer2PS, rowid)))
        return;
    auto form = std::make_unique<frmPS>();
    form->setCustid(custid);
    form->Init(rowid, bEdit);
    showChild(form.release());
}

void frmMain::ShowIssue(qint32 rowid, qint32 custid, bool bEdit, qint32 templateId)
{
    if (raised(u'I' + QString::number(rowid)) ||
        (rowid > 0 && !exists(schema::Table::Issues, rowid)))
        return;
    auto form = std::make_unique<frmIssue>();
    form->setCustid(custid);
    form->setTemplateId(templateId);
    form->Init(rowid, bEdit);
    showChild(form.release());
}

void frmMain::ShowIssueTemplate(qint32 rowid, bool bEdit)
{
    if (raised(u'T' + QString::number(rowid)) || !exists(schema::Table::IssuesTemplates, rowid))
        return;
    auto form = std::make_unique<frmIssueTemplate>();
    form->Init(rowid, bEdit);
    showChild(form.release());
}

bool frmMain::GetIssueTemplateID(qint32 &id)
{
    frmSelectIssueTemplate choice(this);
    if (choice.exec() != QDialog::Accepted)
        return false;
    id = choice.templateId();
    return true;
}

void frmMain::ManageIssueTemplates()
{
    if (!gDB.Perm_DBAdmin())
        return;
    qint32 toEdit = -1;
    {
        frmEditIssueTemplates list(this);
        list.exec();
        toEdit = list.templateToEdit();
    }
    if (toEdit > 0)
        ShowIssueTemplate(toEdit, true);
}
