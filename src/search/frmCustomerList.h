// The hits of a customer search, from which a customer is opened.
#pragma once

#include "db/engine/engine.h"
#include "search/HitListWindow.h"

#include <array>
#include <memory>

class CustomerMatcher;
namespace Ui
{
class frmCustomerList;
}

class frmCustomerList : public HitListWindow
{
    Q_OBJECT
public:
    explicit frmCustomerList(QWidget *parent = nullptr);
    ~frmCustomerList() override;

    // SearchType is one of CustomerSearch; an empty text lists every customer.
    void Init(const QString &sSearchStr, qint32 SearchType);
    void LoadData();

protected:
    void reload() override { LoadData(); }
    void openRecord(qint32 rowid) override;

private:
    using Handle = norvane::engine::Handle;
    using AddressFields = std::array<Handle, 8>;
    struct ListFields {
        Handle rowid, lastname, firstname, company, custno, workphone, city;
    };

    void setUpList();

    // These are false when the person cancelled.
    bool runSearch(Handle table);
    bool LoadCustomersWithTag(Handle table, const QString &sTag);
    bool LoadAllCustomers(Handle table, qint32 SearchType);
    bool CustomerMeetsCriteria(const CustomerMatcher &matcher, const AddressFields &stringFlds);
    bool FieldContainsSearchStr(const CustomerMatcher &matcher, Handle fld);
    static ListFields listFields(Handle table);
    void AddLvItem(const ListFields &fields);

    std::unique_ptr<Ui::frmCustomerList> ui;
    QString m_sSearchStr;
    qint32 m_SearchType = 0;
};
