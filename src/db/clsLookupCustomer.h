// Looks customers up by their number.
#pragma once

#include "db/clsDB.h"

class clsLookupCustomer
{
public:
    // How many customers other than that row have this number, letter case and surrounding
    // blanks aside. An empty number counts the customers without one. A table handle above 0 is
    // used; otherwise the customer table is opened here, and 0 is the answer when it cannot be.
    static qint32 CustomersWithCustomerNumber(const QString &customerNumber, qint32 excludeRowId,
                                              clsDB::Handle tb_cust = 0);
};
