// One issue of a customer, with the actions taken on it and its attachments.
#pragma once

#include "forms/IssueRecordForm.h"

#include <memory>

namespace Ui
{
class frmIssue;
}

class frmIssue : public IssueRecordForm<CustomerItemForm>
{
    Q_OBJECT
public:
    explicit frmIssue(QWidget *parent = nullptr);
    ~frmIssue() override;

    // The template that a new issue starts from, below 1 for none; set before Init.
    void setTemplateId(qint32 id) { m_templateId = id; }
    // The record as plain text: a labelled line for each field, the actions and the long texts.
    QString FormContent() override;
    void InitIACtl(); // shows the actions of a stored issue

    QSize sizeHint() const override;

protected:
    QString description() const override;
    QString firstProblem() override;
    void startNew() override;
    void afterLoad() override;
    void afterApply() override;
    void afterSetUI() override;
    bool removeRecord() override;

private:
    void takeFromTemplate();
    void ShowIssueNum();

    std::unique_ptr<Ui::frmIssue> m_ui;
    qint32 m_templateId = -1;
};
