// One user: name, role and rights. A record screen shown as a dialog over the list of users.
#pragma once

#include "common/form/RecordForm.h"

#include <memory>

namespace Ui
{
class frmUser;
}

class frmUser : public RecordForm
{
    Q_OBJECT
public:
    explicit frmUser(QWidget *parent = nullptr);
    ~frmUser() override;

    void Init(qint32 rowid, bool bEdit) override;
    // Shows the form and waits until it is closed; true when the user was saved.
    bool exec();

    // Ticks from a permission string, and the string that the ticks make.
    void SetPermListBox(const QString &perm);
    QString GetPermListBox() const;

    bool SaveData() override;
    // A user is neither printed nor mailed.
    QString FormContent() override { return {}; }
    QString FormPrint() override { return {}; }
    QString FormEmail() override { return {}; }

protected:
    QString description() const override;
    QString firstProblem() override;
    void afterSetUI() override;
    void hideEvent(QHideEvent *event) override;

private:
    void bindFields();
    void showRole(const QString &usertype);
    void enablePermissions();

    std::unique_ptr<Ui::frmUser> m_ui;
    bool m_saved = false;

Q_SIGNALS:
    void hidden();
};
