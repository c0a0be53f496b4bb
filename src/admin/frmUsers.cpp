#include "admin/frmUsers.h"

#include "admin/frmUser.h"
#include "common/base/clsSystem.h"
#include "common/base/Failure.h"
#include "common/base/HelpTopics.h"
#include "common/base/Hourglass.h"
#include "common/ui/ListView.h"
#include "db/clsDB.h"
#include "db/TableUse.h"
#include "ui_frmUsers.h"

#include <QLayout>
#include <QShortcut>

namespace
{

constexpr int kVisibleUsers = 14;

QString userFile()
{
    return schema::table(schema::Table::User).dataFile();
}

ListView::Row listRow(const TableUse &user)
{
    return {LvKey(user.number(QStringLiteral("rowid"))),
            {user.text(QStringLiteral("login")),
             clsSystem::MakeFullName(user.text(QStringLiteral("firstname")),
                                     user.text(QStringLiteral("lastname"))),
             clsDB::GetUserTypeStr(user.text(QStringLiteral("usertype"))),
             clsDB::TorF2Str(user.text(QStringLiteral("useractive")))}};
}

prompts::Answer askYesNo(const QString &question, prompts::Answer preset)
{
    prompts::Message box;
    box.kind = prompts::Kind::Question;
    box.text = question;
    box.buttons = {prompts::Answer::Yes, prompts::Answer::No};
    box.preset = preset;
    return prompts::message(box);
}

} // namespace

frmUsers::frmUsers(QWidget *parent) : QDialog(parent), ui(std::make_unique<Ui::frmUsers>())
{
    ui->setupUi(this);
    setProperty("helpTopic", help::Users);
    const QList<ListView::Column> columns{{tr("Login Name"), QStringLiteral("L"), 150},
                                          {tr("Name"), QStringLiteral("N"), 200},
                                          {tr("Role"), QStringLiteral("R"), 110},
                                          {tr("Active?"), QStringLiteral("A"), 80}};
    for (const ListView::Column &column : columns)
        m_columnsWidth += column.width;
    ui->lvUsers->setColumns(columns);
    ui->lvUsers->sortBy(0, Qt::AscendingOrder);
    connect(ui->lvUsers, &ListView::itemActivated, this, &frmUsers::showProperties);
    connect(ui->lvUsers, &ListView::itemSelectionChanged, this, &frmUsers::SetUI);
    connect(ui->cmdAdd, &QPushButton::clicked, this, &frmUsers::addUser);
    connect(ui->cmdProperties, &QPushButton::clicked, this, &frmUsers::showProperties);
    connect(ui->cmdRemove, &QPushButton::clicked, this, &frmUsers::removeUser);
    connect(ui->cmdResetPassword, &QPushButton::clicked, this, &frmUsers::resetPassword);
    connect(ui->cmdRefresh, &QPushButton::clicked, this, &frmUsers::refresh);
    connect(ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    addShortcut(Qt::Key_Insert, &frmUsers::addUser);
    addShortcut(Qt::Key_Delete, &frmUsers::removeUser);
    addShortcut(QKeySequence::Refresh, &frmUsers::refresh);
    LoadData();
    LvSelectFirstItem(ui->lvUsers);
    SetUI();
    resize(frmUsers::sizeHint()); // a dialog would take no more than a part of a small screen by
                                  // itself
}

frmUsers::~frmUsers() = default;

void frmUsers::addShortcut(const QKeySequence &keys, void (frmUsers::*command)())
{
    connect(new QShortcut(keys, this), &QShortcut::activated, this, command);
}

// Room for all columns beside the buttons, and for a page of users.
QSize frmUsers::sizeHint() const
{
    const QMargins margins = layout()->contentsMargins();
    const int width =
        m_columnsWidth * logicalDpiX() / 96 + ui->cmdResetPassword->sizeHint().width() +
        style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 3 * margins.left() + margins.right();
    return QDialog::sizeHint().expandedTo({width, fontMetrics().height() * 3 / 2 * kVisibleUsers});
}

void frmUsers::LoadData()
{
    guarded("frmUsers_LoadData", [this] {
        const Hourglass hourglass;
        const QString selected = LvGetSelectedItemKey(ui->lvUsers);
        TableUse users(gDB, gDB.UserTable());
        if (!users) {
            ui->lvUsers->setEmptyText(tr("The users could not be read."));
            return;
        }
        users.select(QStringLiteral("login"));
        QList<ListView::Row> rows;
        for (bool more = users.top(); more; more = users.next())
            rows.append(listRow(users));
        ui->lvUsers->beginLoad();
        ui->lvUsers->clearItems();
        ui->lvUsers->addItems(rows);
        ui->lvUsers->endLoad();
        LvSelectItem(ui->lvUsers, selected);
        ui->lblCount->setText(QString::number(ui->lvUsers->itemCount()) + tr(" user(s)"));
    });
}

void frmUsers::SetUI()
{
    const bool selected = LvIsItemSelected(ui->lvUsers);
    for (QPushButton *button : {ui->cmdProperties, ui->cmdRemove, ui->cmdResetPassword})
        button->setEnabled(selected);
}

void frmUsers::refresh()
{
    LoadData();
    SetUI();
}

QString frmUsers::selectedLogin() const
{
    return LvGetSelectedItemText(ui->lvUsers);
}

qint32 frmUsers::selectedId() const
{
    return LvKeyId(LvGetSelectedItemKey(ui->lvUsers));
}

bool frmUsers::selectedExists() const
{
    return gDB.CheckIfRecExists(gDB.UserTable(), userFile(), selectedId());
}

void frmUsers::addUser()
{
    if (!gDB.MayWrite())
        return;
    frmUser form(this);
    form.Init(-1, true);
    if (!form.exec())
        return;
    refresh();
    LvSelectItem(ui->lvUsers, LvKey(form.rowid()));
}

void frmUsers::showProperties()
{
    if (!LvIsItemSelected(ui->lvUsers))
        return;
    if (selectedLogin().toUpper() == clsDB::DefaultLogin().toUpper()) {
        clsSystem::ShowMsg(
            tr("SYSOP is a system account. It cannot be modified. You can, however, change "
               "password for SYSOP. To change password for SYSOP, login as SYSOP (initial "
               "password for SYSOP is SYSOP) and choose File, Change Password... menu."));
        return;
    }
    if (!selectedExists())
        return;
    frmUser form(this);
    form.Init(selectedId(), false);
    form.exec();
    refresh();
}

// Saved records name the user who edited them, so users stay.
void frmUsers::removeUser()
{
    if (!LvIsItemSelected(ui->lvUsers))
        return;
    const QString question =
        tr("To preserve history of edits by a user, deletion of users is NOT allowed. However, "
           "you may INACTIVATE a user by unchecking the Active checkbox on User Properties dialog "
           "box.\n\nWould like to view Properties for this user?");
    if (askYesNo(question, prompts::Answer::Yes) == prompts::Answer::Yes)
        showProperties();
}

void frmUsers::resetPassword()
{
    if (!LvIsItemSelected(ui->lvUsers) || !gDB.MayWrite() || !selectedExists())
        return;
    const QString login = selectedLogin();
    const QString question = tr("Do you want to RESET the password for user '%1'?\n\n"
                                "After reset, the password will be:\n%1")
                                 .arg(login);
    if (askYesNo(question, prompts::Answer::No) != prompts::Answer::Yes)
        return;
    if (gDB.SetPassword(selectedId(), QString()))
        prompts::inform(tr("The password for user '%1' has been reset to: %1").arg(login));
    else
        prompts::warn(tr("Unable to reset password!"));
}
