// An issue window over a temporary database that has a customer and a product.
#pragma once

#include "FormFixture.h"
#include "forms/frmIssue.h"

class IssueForm : public FormFixture<frmIssue>
{
protected:
    using Fields = TempDatabase::Fields;

    void open(qint32 rowid, bool edit = false, qint32 templateId = -1)
    {
        auto made = std::make_unique<frmIssue>();
        made->setCustid(customer);
        made->setTemplateId(templateId);
        FormFixture::open(std::move(made), rowid, edit);
    }
    void openNew(qint32 templateId = -1) { open(-1, true, templateId); }
    void openForEdit(qint32 rowid)
    {
        open(rowid);
        click("lblEdit");
        ASSERT_TRUE(form->inEditMode());
    }

    qint32 addIssue(const QString &shortDesc)
    {
        return database.addIssue({{"custid", customer},
                                  {"psid", product},
                                  {"shortdesc", shortDesc},
                                  {"submitdt", "20040301"}});
    }
    qint32 addAction(Fields fields) { return database.add(QStringLiteral("_issueaction"), fields); }
    qint32 addTemplate(const QString &name, Fields fields)
    {
        const qint32 id = database.add(QStringLiteral("_issuetemplate"), fields);
        const clsDB::ListTable list{QStringLiteral("nvnitempl.dbf"), gDB.IssuesTemplatesTable(),
                                    QStringLiteral("rowid"), QStringLiteral("name"), 0};
        EXPECT_EQ(gDB.AddUpdateItem(list, id, name), id);
        return id;
    }
    QString chosen(const char *combo) const { return find<QComboBox>(combo)->currentText(); }

    QString stored(qint32 rowid, const char *field) const
    {
        return database.stored(schema::Table::Issues, rowid, QLatin1String(field));
    }
    static qint32 markOwner(qint32 rowid) { return markOf(schema::Table::Issues, rowid); }

    qint32 customer =
        database.addCustomer({{"company", "Acme"}, {"lastname", "Smith"}, {"firstname", "Ann"}});
    qint32 product = database.addListItem(2, QStringLiteral("Printer"));
};
