// One issue template: the values that a new issue may start from. Its name is kept in the list of
// templates (frmEditIssueTemplates) and only shown here.
#pragma once

#include "forms/IssueRecordForm.h"

#include <memory>

namespace Ui
{
class frmIssueTemplate;
}

class frmIssueTemplate : public IssueRecordForm<RecordForm>
{
    Q_OBJECT
public:
    explicit frmIssueTemplate(QWidget *parent = nullptr);
    ~frmIssueTemplate() override;

    // Goes into edit mode as a person would, with the question about another editor.
    void Init(qint32 rowid, bool bEdit) override;
    QString FormContent() override;

    QSize sizeHint() const override;

protected:
    QString description() const override { return m_name; }
    void afterRead(const RecColl &record) override;

private:
    std::unique_ptr<Ui::frmIssueTemplate> m_ui;
    QString m_name;
};
