#include "shell/frmLogin.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "common/ui/Controls.h"
#include "db/clsDB.h"
#include "ui_frmLogin.h"

#include <QPushButton>

frmLogin::frmLogin(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmLogin>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::Login);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("OKButton"));
    ui->buttonBox->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("CancelButton"));
    QPalette readOnly = ui->txtDir->palette();
    readOnly.setColor(QPalette::Base, readOnlyColour(ui->txtDir));
    ui->txtDir->setPalette(readOnly);
}

frmLogin::~frmLogin() = default;

void frmLogin::Init(const QString &dir, const QString &login, const QString &password)
{
    ui->txtDir->setText(dir);
    ui->txtDir->setToolTip(dir);
    ui->txtLogin->setText(login);
    ui->txtPassword->setText(password);
    if (login.isEmpty())
        ui->txtLogin->setFocus();
    else if (password.isEmpty())
        ui->txtPassword->setFocus();
    else
        ui->buttonBox->button(QDialogButtonBox::Ok)->setFocus();
}

void frmLogin::accept()
{
    const QString login = ui->txtLogin->text().trimmed();
    const QString password = ui->txtPassword->text().trimmed();
    if (login.isEmpty()) {
        prompts::warn(tr("Login Name must be entered!"));
        backTo(ui->txtLogin);
        return;
    }
    if (password.isEmpty()) {
        prompts::warn(tr("Password must be entered!"));
        backTo(ui->txtPassword);
        return;
    }
    LoginOutcome who{true, login, password, -1, false, {}};
    if (!gDB.VerifyLogin(login, password, who.id, who.isAdmin, who.permissions)) {
        tellInvalid();
        backTo(ui->txtPassword);
        return;
    }
    m_outcome = who;
    QDialog::accept();
}

void frmLogin::tellInvalid()
{
    gSys.ShowMsg(tr("Invalid Login Name or Password! Please try again.\n"
                    "\n"
                    "If you believe you are getting this message in error, please ask your "
                    "administrator to check whether your Login Name exists in the system. Your "
                    "administrator can:\n"
                    "  - Add a Login Name for you\n"
                    "  - Activate a Login Name if it is not ACTIVE\n"
                    "  - Reset your Password to your Login Name (if you have forgotten your "
                    "password)\n"
                    "\n"
                    "Please note BOTH the Login Name and Password for a new database is SYSOP"),
                 prompts::Kind::Warning);
}

void frmLogin::backTo(QLineEdit *box)
{
    box->setFocus();
    box->selectAll();
}
