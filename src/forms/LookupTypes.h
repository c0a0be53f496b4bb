// Type codes of the lookup lists that issues, their actions and their templates show.
#pragma once

#include <QtGlobal>

namespace lookup_type
{

enum Code : qint32 {
    Products = 2,
    IssueStatuses = 101,
    IssuePriorities = 102,
    IssueCategories = 105,
    IssueActions = 106,
    IssueCustom1 = 202,
    IssueCustom2 = 203
};

} // namespace lookup_type
