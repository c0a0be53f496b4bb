// A customer window over a temporary database.
#pragma once

#include "FormFixture.h"
#include "forms/frmCustomer.h"

class CustomerForm : public FormFixture<frmCustomer>
{
protected:
    void open(qint32 rowid, bool edit = false)
    {
        FormFixture::open(std::make_unique<frmCustomer>(), rowid, edit);
    }
    void openNew() { open(-1, true); }
    // An existing customer in edit mode.
    void openForEdit(qint32 rowid)
    {
        open(rowid);
        click("lblEdit");
        ASSERT_TRUE(form->inEditMode());
    }

    // What the customer's row holds, read past the window.
    QString stored(qint32 rowid, const char *field) const
    {
        return database.stored(schema::Table::Customer, rowid, QLatin1String(field));
    }
    static qint32 markOwner(qint32 rowid) { return markOf(schema::Table::Customer, rowid); }
};
