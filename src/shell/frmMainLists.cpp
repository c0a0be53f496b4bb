// The commands that open the editors of the lookup lists.
#include "shell/frmMain.h"

#include "admin/LookupLists.h"
#include "db/clsDB.h"

#include <QLabel>

namespace
{

// Type codes of the lists.
enum List : qint32 {
    CustomerCategories = 1,
    ProductsServices = 2,
    States = 3,
    Countries = 4,
    IssueStatuses = 101,
    IssuePriorities = 102,
    ContractTypes = 103,
    ContractDurations = 104,
    IssueCategories = 105,
    IssueActions = 106
};

} // namespace

void frmMain::EditCategory(qint32 type)
{
    editLookupList(type, this);
}

void frmMain::EditCustomerCategory()
{
    EditCategory(CustomerCategories);
}

void frmMain::EditProductServiceCategory()
{
    EditCategory(ProductsServices);
}

void frmMain::EditContractTypesCategory()
{
    EditCategory(ContractTypes);
}

void frmMain::EditContractDurationsCategory()
{
    EditCategory(ContractDurations);
}

void frmMain::EditStateCategory()
{
    EditCategory(States);
}

void frmMain::EditCountryCategory()
{
    EditCategory(Countries);
}

void frmMain::EditIssueStatusCategory()
{
    EditCategory(IssueStatuses);
}

void frmMain::EditIssueActionsCategory()
{
    EditCategory(IssueActions);
}

void frmMain::EditIssuePriorityCategory()
{
    EditCategory(IssuePriorities);
}

void frmMain::EditIssueCategory()
{
    EditCategory(IssueCategories);
}

void frmMain::EditCustomFieldCategory(qint32 type)
{
    EditCategory(type);
}

void frmMain::SetCustomFieldLabel(QLabel *label, const QString &name)
{
    QString caption = gDB.GetParamValue(name);
    if (caption.isEmpty())
        return;
    if (!caption.endsWith(u':'))
        caption += u':';
    label->setText(caption);
}
