// The commands that open the editors of the lookup lists.
#include "shell/frmMain.h"

#include "admin/LookupLists.h"
#include "db/clsDB.h"
#include "db/LookupTypes.h"

#include <QLabel>

void frmMain::EditCategory(qint32 type)
{
    editLookupList(type, this);
}

void frmMain::EditCustomerCategory()
{
    EditCategory(lookup_type::CustomerCategories);
}

void frmMain::EditProductServiceCategory()
{
    EditCategory(lookup_type::Products);
}

void frmMain::EditContractTypesCategory()
{
    EditCategory(lookup_type::ContractTypes);
}

void frmMain::EditContractDurationsCategory()
{
    EditCategory(lookup_type::ContractDurations);
}

void frmMain::EditStateCategory()
{
    EditCategory(lookup_type::States);
}

void frmMain::EditCountryCategory()
{
    EditCategory(lookup_type::Countries);
}

void frmMain::EditIssueStatusCategory()
{
    EditCategory(lookup_type::IssueStatuses);
}

void frmMain::EditIssueActionsCategory()
{
    EditCategory(lookup_type::IssueActions);
}

void frmMain::EditIssuePriorityCategory()
{
    EditCategory(lookup_type::IssuePriorities);
}

void frmMain::EditIssueCategory()
{
    EditCategory(lookup_type::IssueCategories);
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
