#include "admin/frmChangePWD.h"

#include "common/base/Ansi.h"
#include "common/base/HelpTopics.h"
#include "common/base/Prompts.h"
#include "ui_frmChangePWD.h"

#include <algorithm>

namespace
{

constexpr qsizetype kShortest = 3;
constexpr qsizetype kLongest = 20;

bool isStorable(const QString &text)
{
    return fromAnsi(toAnsi(text)) == text;
}

} // namespace

frmChangePWD::frmChangePWD(QWidget *parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmChangePWD>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::ChangePassword);
    connect(ui->cmdHelp, &QPushButton::clicked, this, &frmChangePWD::tellHelp);
}

frmChangePWD::~frmChangePWD() = default;

void frmChangePWD::EnterMode(const QString &caption, const QString &password)
{
    m_current = password;
    startMode(caption, false);
}

void frmChangePWD::NewMode(const QString &caption)
{
    startMode(caption, true);
}

void frmChangePWD::startMode(const QString &caption, bool isNew)
{
    m_isNew = isNew;
    ui->lblCaption->setText(caption);
    ui->lblRetype->setVisible(isNew);
    ui->txtPasswordRetype->setVisible(isNew);
    ui->txtPassword->clear();
    ui->txtPasswordRetype->clear();
    ui->txtPassword->setFocus();
    adjustSize();
}

QString frmChangePWD::password() const
{
    return ui->txtPassword->text();
}

void frmChangePWD::accept()
{
    const QString reason = problem();
    if (reason.isEmpty()) {
        QDialog::accept();
        return;
    }
    prompts::warn(reason, m_isNew ? QString() : tr("Password"));
    ui->txtPassword->setFocus();
    ui->txtPassword->selectAll();
}

QString frmChangePWD::problem() const
{
    const QString typed = password();
    if (!m_isNew)
        return typed.toLower() == m_current.toLower() ? QString()
                                                      : tr("Incorrect Password, try again!");
    if (typed != ui->txtPasswordRetype->text())
        return tr("The password you entered in the two entry boxes do not match. Please enter "
                  "identical passwords in both entry boxes.");
    if (typed.size() < kShortest || typed.size() > kLongest)
        return tr("Password must be at least 3 characters long or at most 20 characters long.");
    if (std::any_of(typed.begin(), typed.end(), [](QChar c) { return c.isSpace(); }))
        return tr("Password cannot contain spaces!");
    // It would be stored as another one, and nobody could log in with either.
    if (!isStorable(typed) || !isStorable(typed.toLower()))
        return tr("Password contains characters that cannot be stored! Please use other ones.");
    return {};
}

void frmChangePWD::tellHelp()
{
    prompts::inform(m_isNew ? tr("Enter your new password twice.")
                            : tr("You will first enter your current password and then your new "
                                 "password."));
}
