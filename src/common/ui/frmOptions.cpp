#include "common/ui/frmOptions.h"

#include "ui_frmOptions.h"

#include "common/base/HelpTopics.h"
#include "common/ui/Icons.h"
#include "common/ui/Mail.h"

frmOptions::frmOptions(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmOptions>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::EmailOptions);
    setWindowIcon(icon(QStringLiteral("email")));
    connect(ui->OKButton, &QPushButton::clicked, this, [this] {
        SaveData();
        accept();
    });
    connect(ui->cmdApply, &QPushButton::clicked, this, &frmOptions::SaveData);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    InitControls();
    LoadData();
}

frmOptions::~frmOptions() = default;

// An exclusive group cannot be cleared, only taken apart for the moment.
void frmOptions::InitControls()
{
    ui->optEmail->setExclusive(false);
    ui->optEmailOutlook->setChecked(false);
    ui->optEmailMAPI->setChecked(false);
    ui->optEmail->setExclusive(true);
}

void frmOptions::LoadData()
{
    const int handler = mail::GetEmailHandler();
    ui->optEmailOutlook->setChecked(handler == mail::Outlook);
    ui->optEmailMAPI->setChecked(handler == mail::SimpleMapi);
}

void frmOptions::SaveData()
{
    if (ui->optEmailOutlook->isChecked())
        mail::SetEmailHandler(mail::Outlook);
    else if (ui->optEmailMAPI->isChecked())
        mail::SetEmailHandler(mail::SimpleMapi);
}
