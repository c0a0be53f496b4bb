// One action taken on an issue: added, edited, looked at or deleted. Modal; an action is saved at
// once, whatever becomes of the edit of its issue.
#pragma once

#include "common/form/FieldBinding.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace Ui
{
class frmIssueAction;
}

class frmIssueAction : public QDialog
{
    Q_OBJECT
public:
    enum Mode { Add = 1, Edit = 2, View = 3, Delete = 4 };

    explicit frmIssueAction(QWidget *parent = nullptr);
    ~frmIssueAction() override;

    void Init(qint32 actionId, qint32 issueId, Mode mode);
    // Init, and the dialog until it is closed; what wasStored() tells then.
    bool show(qint32 actionId, qint32 issueId, Mode mode);
    // Something was stored or deleted.
    bool wasStored() const { return m_done; }
    qint32 ActionID() const { return m_actionId; } // of the stored row

    void accept() override;

private:
    void connectControls();
    void bindFields();
    void showField(const QString &field, const QVariant &value);
    bool canEdit() const { return m_mode == Add || m_mode == Edit; }
    void InitCtls();
    void LoadData();
    void ReadData();
    void SetUI();
    void editActionList();
    bool Validate();
    bool SaveData();
    bool DeleteRecord();
    void NoIssueMsg() const;

    std::unique_ptr<Ui::frmIssueAction> m_ui;
    std::vector<FieldBinding> m_bindings;
    qint32 m_actionId = -1;
    qint32 m_issueId = -1;
    Mode m_mode = View;
    bool m_done = false;
    bool m_allShown = false; // lists and record are on the screen as they are stored
};
