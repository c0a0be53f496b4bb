// The login box of a data folder.
#pragma once

#include "db/Screens.h"

#include <QDialog>

#include <memory>

class QLineEdit;
namespace Ui
{
class frmLogin;
}

class frmLogin : public QDialog
{
    Q_OBJECT
public:
    explicit frmLogin(QWidget *parent = nullptr);
    ~frmLogin() override;

    // Fills the boxes; the first empty one gets the focus.
    void Init(const QString &dir, const QString &login, const QString &password);
    // Who logged in; `ok` only after the box was accepted.
    const LoginOutcome &outcome() const { return m_outcome; }

    void accept() override;

private:
    void backTo(QLineEdit *box);
    void tellInvalid();

    std::unique_ptr<Ui::frmLogin> ui;
    LoginOutcome m_outcome;
};
