// The editor of one lookup list: entries are added, renamed in place and deleted; one that a record
// refers to stays. Modal.
#pragma once

#include "admin/LookupLists.h"
#include "common/form/ItemListDialog.h"

#include <memory>

namespace Ui
{
class frmEditCategories;
}

class frmEditCategories : public ItemListDialog
{
    Q_OBJECT
public:
    explicit frmEditCategories(QWidget *parent = nullptr);
    ~frmEditCategories() override;

    void Init(const LookupList &list);

protected:
    clsDB::ListTable table() const override { return m_list.table; }
    void LoadData() override; // the caption tells when
    void SetUI() override;
    QString titleKey() const override { return u"RptTitle " + m_list.caption; }

private:
    void connectControls();
    void deleteSelected();
    void deleteAll();
    bool DeleteItem(qint32 rowid, const QString &text);

    std::unique_ptr<Ui::frmEditCategories> m_ui;
    LookupList m_list;
};
