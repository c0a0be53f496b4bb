#include "common/form/frmUnderEditMsg.h"

#include "common/base/HelpTopics.h"
#include "common/ui/Icons.h"
#include "ui_frmUnderEditMsg.h"

#include <QApplication>
#include <QStyle>

frmUnderEditMsg::frmUnderEditMsg(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmUnderEditMsg>())
{
    m_ui->setupUi(this);
    setProperty("helpTopic", help::RecordUnderEdit);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    m_ui->imgWarn->setPixmap(
        icon(QStringLiteral("warning")).pixmap(QSize(size, size), devicePixelRatioF()));
    connect(m_ui->OKButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

frmUnderEditMsg::~frmUnderEditMsg() = default;

void frmUnderEditMsg::Init(const QString &user, const QString &station)
{
    m_ui->lblMsg->setText(tr("The record you are trying to edit is currently being edited by user "
                             "'%1' from machine '%2'\n\nWhat would you like to do?")
                              .arg(user, station));
}

bool frmUnderEditMsg::ask(const QString &user, const QString &station)
{
    frmUnderEditMsg question(QApplication::activeWindow());
    question.Init(user, station);
    return question.exec() == QDialog::Accepted;
}
