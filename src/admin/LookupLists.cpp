#include "admin/LookupLists.h"

#include "admin/frmEditCategories.h"
#include "db/LookupTypes.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(LookupLists)
};

using schema::Table;

struct Reference {
    Table table;
    const char *field; // null: none
};

struct ListInfo {
    qint32 type;
    const char *caption;
    const char *name;
    const char *helpKey;
    Reference usedBy[2];
};

constexpr Reference Nowhere{Table::Category, nullptr};

constexpr ListInfo lists[] = {
    {lookup_type::CustomerCategories,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Customer Categories"),
     QT_TRANSLATE_NOOP("LookupLists", "Customer Categories"),
     "LISTMGMT_CUSTOMERCATEGORIES",
     {{Table::Customer, "custcat"}, Nowhere}},
    {lookup_type::Products,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Products/Services"),
     QT_TRANSLATE_NOOP("LookupLists", "Products/Services"),
     "LISTMGMT_PRODUCTSERVICECATEGORIES",
     {{Table::Customer2PS, "psid"}, {Table::Issues, "psid"}}},
    {lookup_type::States,
     QT_TRANSLATE_NOOP("LookupLists", "Edit States/Provinces"),
     QT_TRANSLATE_NOOP("LookupLists", "States/Provinces"),
     "LISTMGMT_STATECATEGORIES",
     {{Table::Customer, "state"}, Nowhere}},
    {lookup_type::Countries,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Countries"),
     QT_TRANSLATE_NOOP("LookupLists", "Countries"),
     "LISTMGMT_COUNTRYCATEGORIES",
     {{Table::Customer, "country"}, Nowhere}},
    {lookup_type::IssueStatuses,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Issue Statuses"),
     QT_TRANSLATE_NOOP("LookupLists", "Issue Statuses"),
     "LISTMGMT_ISSUESTATUSES",
     {{Table::Issues, "status"}, Nowhere}},
    {lookup_type::IssuePriorities,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Issue Priorities"),
     QT_TRANSLATE_NOOP("LookupLists", "Issue Priorities"),
     "LISTMGMT_ISSUEPRIORITIES",
     {{Table::Issues, "priority"}, Nowhere}},
    {lookup_type::ContractTypes,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Contract Types"),
     QT_TRANSLATE_NOOP("LookupLists", "Contract Types"),
     "LISTMGMT_CONTRACTTYPECATEGORIES",
     {{Table::Customer2PS, "conttype"}, Nowhere}},
    {lookup_type::ContractDurations,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Contract Durations"),
     QT_TRANSLATE_NOOP("LookupLists", "Contract Durations"),
     "LISTMGMT_CONTRACTDURATIONCATEGORIES",
     {{Table::Customer2PS, "contdur"}, Nowhere}},
    {lookup_type::IssueCategories,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Issue Categories"),
     QT_TRANSLATE_NOOP("LookupLists", "Issue Categories"),
     "LISTMGMT_ISSUECATETORIES",
     {{Table::Issues, "issuecat"}, Nowhere}},
    {lookup_type::IssueActions,
     QT_TRANSLATE_NOOP("LookupLists", "Edit Issue Actions"),
     QT_TRANSLATE_NOOP("LookupLists", "Issue Actions"),
     "LISTMGMT_ISSUEACTIONSTATUSES",
     {{Table::IssuesActions, "action"}, Nowhere}},
};

// Choices for the custom fields, which keep plain text: no record refers to them.
constexpr ListInfo quickEntries = {0,
                                   QT_TRANSLATE_NOOP("LookupLists", "Edit Quick Entry List"),
                                   QT_TRANSLATE_NOOP("LookupLists", "Quick Entry List"),
                                   "LISTMGMT_CUSTOMFIELDS",
                                   {Nowhere, Nowhere}};

const ListInfo *listInfo(qint32 type)
{
    if (type >= lookup_type::CustomerCustom1 && type <= lookup_type::SubscriptionCustom2)
        return &quickEntries;
    const auto *found = std::find_if(std::begin(lists), std::end(lists),
                                     [type](const ListInfo &info) { return info.type == type; });
    return found == std::end(lists) ? nullptr : found;
}

} // namespace

std::optional<LookupList> lookupList(qint32 type)
{
    const ListInfo *info = listInfo(type);
    if (info == nullptr)
        return std::nullopt;
    LookupList list{.caption = Words::tr(info->caption),
                    .name = Words::tr(info->name),
                    .table = {schema::table(Table::Category).dataFile(), gDB.CategoryTable(),
                              QStringLiteral("rowid"), QStringLiteral("desc"), type},
                    .usedBy = {},
                    .helpKey = QString::fromLatin1(info->helpKey)};
    for (const Reference &reference : info->usedBy)
        if (reference.field != nullptr)
            list.usedBy.append(
                {gDB.TablePath(reference.table), QString::fromLatin1(reference.field)});
    return list;
}

void editLookupList(qint32 type, QWidget *parent)
{
    if (!gDB.Perm_ListMgmt())
        return;
    const std::optional<LookupList> list = lookupList(type);
    if (!list)
        return;
    frmEditCategories editor(parent);
    editor.Init(*list);
    editor.exec();
}
