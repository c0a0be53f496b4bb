// Asks which template a new issue starts from, or none. Modal.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui
{
class frmSelectIssueTemplate;
}

class frmSelectIssueTemplate : public QDialog
{
    Q_OBJECT
public:
    explicit frmSelectIssueTemplate(QWidget *parent = nullptr);
    ~frmSelectIssueTemplate() override;

    // The chosen template, -1 for a blank issue; meant for after the dialog was accepted.
    qint32 templateId() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void LoadData();
    void SetUI();

    std::unique_ptr<Ui::frmSelectIssueTemplate> m_ui;
};
