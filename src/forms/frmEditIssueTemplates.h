// The list of issue templates: new ones, their names, and whether new issues ask for one. Modal.
#pragma once

#include "common/form/ItemListDialog.h"

#include <memory>

namespace Ui
{
class frmEditIssueTemplates;
}

class frmEditIssueTemplates final : public ItemListDialog
{
    Q_OBJECT
public:
    explicit frmEditIssueTemplates(QWidget *parent = nullptr);
    ~frmEditIssueTemplates() override;

    // The template that is to be opened for editing now that the list has closed; -1: none.
    qint32 templateToEdit() const { return m_toEdit; }

    // However the window closes: what is being typed is stored, and so is whether templates are on.
    void done(int result) override;

protected:
    clsDB::ListTable table() const override;
    void LoadData() override;
    void SetUI() override;
    QString titleKey() const override { return QStringLiteral("RptTitle Issue Templates"); }

private:
    void editTemplate();
    void storeEnabled();

    std::unique_ptr<Ui::frmEditIssueTemplates> m_ui;
    int m_untitled = 0;
    qint32 m_toEdit = -1;
    bool m_wasEnabled = false;
};
