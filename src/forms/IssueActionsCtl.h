// The actions taken on an issue: who did what, when, for how long, and all of it together. Adding,
// editing and deleting are for edit mode and take effect at once; looking at one is possible
// always.
#pragma once

#include "common/ui/Controls.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class IssueActionsCtl;
}

class frmIssueAction;

class IssueActionsCtl : public QWidget, public EnabledControl
{
    Q_OBJECT
public:
    explicit IssueActionsCtl(QWidget *parent = nullptr);
    ~IssueActionsCtl() override;

    void Init(qint32 issueId);
    bool Enabled() const override { return m_enabled; }
    void SetEnabled(bool enabled) override;
    void LoadLV();
    void SetUI();
    // The list as text and the notes behind it.
    QString content() const;
    // A heading with the date and the notes, for each action, in the order of the list.
    QString NotesContent() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void connectControls();
    void add();
    void editOrView();
    void deleteSelected();
    qint32 selectedId() const; // below 1: none

    std::unique_ptr<Ui::IssueActionsCtl> m_ui;
    qint32 m_issueId = -1;
    bool m_enabled = false;
};
