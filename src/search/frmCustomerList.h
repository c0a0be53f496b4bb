// The hits of a customer search in a sortable list, from which a customer is opened. The window
// keeps its criteria and can be refreshed.
#pragma once

#include "common/ui/FormWindow.h"
#include "common/ui/ListView.h"
#include "db/engine/engine.h"

#include <array>
#include <memory>

class CustomerMatcher;
namespace Ui
{
class frmCustomerList;
}

class frmCustomerList : public FormWindow
{
    Q_OBJECT
public:
    explicit frmCustomerList(QWidget *parent = nullptr);
    ~frmCustomerList() override;

    // SearchType is one of CustomerSearch; an empty text lists every customer.
    void Init(const QString &sSearchStr, qint32 SearchType);
    void LoadData();
    void SetUI();
    // Room for all columns and a page of hits.
    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    using Handle = norvane::engine::Handle;
    using AddressFields = std::array<Handle, 8>;
    struct ListFields {
        Handle rowid, lastname, firstname, company, custno, workphone, city;
    };

    void setUpList();
    void addShortcuts();
    void printList();
    void openCustomer(const QString &key);
    void reload();

    void runSearch(Handle table);
    void LoadCustomersWithTag(Handle table, const QString &sTag);
    void LoadAllCustomers(Handle table, qint32 SearchType);
    bool CustomerMeetsCriteria(const CustomerMatcher &matcher, const AddressFields &stringFlds);
    bool FieldContainsSearchStr(const CustomerMatcher &matcher, Handle fld);
    static ListFields listFields(Handle table);
    ListView::Row AddLvItem(const ListFields &fields) const;
    void DisplayResultCnt();

    std::unique_ptr<Ui::frmCustomerList> ui;
    QString m_sSearchStr;
    qint32 m_SearchType = 0;
    int m_columnsWidth = 0; // pixels at 96 dpi
    bool m_bLoading = false;
    bool m_bCancelled = false;
};
