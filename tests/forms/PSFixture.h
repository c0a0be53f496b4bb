// A subscription window over a temporary database that has a customer.
#pragma once

#include "FormFixture.h"
#include "forms/frmPS.h"

class PSForm : public FormFixture<frmPS>
{
protected:
    void open(qint32 rowid, bool edit = false)
    {
        auto made = std::make_unique<frmPS>();
        made->setCustid(customer);
        FormFixture::open(std::move(made), rowid, edit);
    }
    void openNew() { open(-1, true); }
    void openForEdit(qint32 rowid)
    {
        open(rowid);
        click("lblEdit");
        ASSERT_TRUE(form->inEditMode());
    }
    qint32 addPS(TempDatabase::Fields fields) { return database.addSubscription(fields); }

    // What the row holds, read past the window.
    QString stored(qint32 rowid, const char *field) const
    {
        return database.stored(schema::Table::Customer2PS, rowid, QLatin1String(field));
    }
    static qint32 markOwner(qint32 rowid) { return markOf(schema::Table::Customer2PS, rowid); }

    const qint32 customer = database.addCustomer(
        {{"company", QStringLiteral("Acme")}, {"emailname", QStringLiteral("ann@acme.example")}});
    const qint32 printer = database.addListItem(2, QStringLiteral("Printer"));
};
