// Type codes of the lookup lists, as the category table keeps them with each entry.
#pragma once

#include <QtGlobal>

namespace lookup_type
{

enum Code : qint32 {
    CustomerCategories = 1,
    Products = 2,
    States = 3,
    Countries = 4,
    IssueStatuses = 101,
    IssuePriorities = 102,
    ContractTypes = 103,
    ContractDurations = 104,
    IssueCategories = 105,
    IssueActions = 106,
    // Choices for the custom fields, which keep plain text.
    CustomerCustom1 = 200,
    CustomerCustom2 = 201,
    IssueCustom1 = 202,
    IssueCustom2 = 203,
    SubscriptionCustom1 = 204,
    SubscriptionCustom2 = 205
};

} // namespace lookup_type
