// The editor of one lookup list: entries are added, renamed in place and deleted; one that a record
// refers to stays. Modal.
#pragma once

#include "admin/LookupLists.h"

#include <QDialog>

#include <memory>

namespace Ui
{
class frmEditCategories;
}

class frmEditCategories : public QDialog
{
    Q_OBJECT
public:
    explicit frmEditCategories(QWidget *parent = nullptr);
    ~frmEditCategories() override;

    void Init(const LookupList &list);
    // Reads the list anew; the caption tells when.
    void LoadData();

    // A label that is being typed when the window closes is stored.
    void done(int result) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectControls();
    void SetUI();
    void newItem();
    void deleteSelected();
    void deleteAll();
    void print();
    bool DeleteItem(qint32 rowid, const QString &text);
    std::optional<QString> storeLabel(const QString &key, const QString &text);

    std::unique_ptr<Ui::frmEditCategories> m_ui;
    LookupList m_list;
};
