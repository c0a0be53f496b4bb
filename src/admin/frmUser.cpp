#include "admin/frmUser.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "ui_frmUser.h"

#include <QEventLoop>
#include <QHideEvent>

namespace
{

constexpr qsizetype kShortestLogin = 3;
constexpr qsizetype kLongestLogin = 20;

// No tag and no changing caption: it is never open beside others.
RecordSpec userSpec()
{
    return {.tagPrefix = {},
            .table = schema::Table::User,
            .recordType = QStringLiteral("_userinfo"),
            .captionPrefix = {},
            .newCaption = frmUser::tr("User Properties"),
            .helpTopic = help::Users,
            .permission = nullptr};
}

// In the order of the permission string.
QStringList permissionLabels()
{
    return {frmUser::tr("Edit Customers"),
            frmUser::tr("Edit Product/Services"),
            frmUser::tr("Edit Issues"),
            frmUser::tr("Edit Reports"),
            frmUser::tr("Allow Mail/Email (from Customer Reports)"),
            frmUser::tr("List Management"),
            frmUser::tr("Database Admin")};
}

} // namespace

frmUser::frmUser(QWidget *parent)
    : RecordForm(userSpec(), parent), m_ui(std::make_unique<Ui::frmUser>())
{
    setWindowFlags(Qt::Dialog);
    setWindowModality(Qt::ApplicationModal);
    m_ui->setupUi(this);
    for (const QString &label : permissionLabels()) {
        auto *item = new QListWidgetItem(label, m_ui->lstPermissions);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    takeControls(m_ui.get());
    setNewRecordHint(m_ui->lblMsg);
    bindFields();
    for (QRadioButton *role : {m_ui->UserType_0, m_ui->UserType_1})
        connect(role, &QRadioButton::toggled, this, &frmUser::enablePermissions);
}

frmUser::~frmUser() = default;

// In the order in which the fields are saved.
void frmUser::bindFields()
{
    bind(QStringLiteral("login"), m_ui->txtLogin);
    bind(QStringLiteral("firstname"), m_ui->txtFname);
    bind(QStringLiteral("lastname"), m_ui->txtLname);
    bind(QStringLiteral("dept"), m_ui->txtDept);
    bindCustom(
        QStringLiteral("useractive"), m_ui->chkActive,
        [this](const QVariant &value) {
            m_ui->chkActive->setChecked(clsDB::TorF2Bool(value.toString()));
        },
        [this] { return QVariant(clsSystem::Bool2TorF(m_ui->chkActive->isChecked())); });
    bindCustom(
        QStringLiteral("usertype"), m_ui->UserType_1,
        [this](const QVariant &value) { showRole(value.toString()); },
        [this] {
            return QVariant(QString(
                QLatin1Char(m_ui->UserType_0->isChecked() ? clsDB::AdminCode : clsDB::UserCode)));
        });
    bindCustom(
        QStringLiteral("perm"), m_ui->lstPermissions,
        [this](const QVariant &value) { SetPermListBox(value.toString()); },
        [this] { return QVariant(GetPermListBox()); });
    bind(QStringLiteral("note"), m_ui->txtNote);
}

void frmUser::Init(qint32 rowid, bool bEdit)
{
    if (rowid < 1) {
        m_ui->lblMsg->setText(
            tr("NOTE: The initial password for the user is the same as Login Name."));
        m_ui->chkActive->setChecked(true);
        SetPermListBox(clsDB::GetDefaultPermissionsStr());
    }
    RecordForm::Init(rowid, bEdit);
}

bool frmUser::exec()
{
    QEventLoop untilHidden;
    connect(this, &frmUser::hidden, &untilHidden, &QEventLoop::quit);
    show();
    untilHidden.exec();
    return m_saved;
}

void frmUser::hideEvent(QHideEvent *event)
{
    RecordForm::hideEvent(event);
    if (!event->spontaneous())
        Q_EMIT hidden();
}

void frmUser::showRole(const QString &usertype)
{
    const bool isAdmin = usertype.startsWith(QLatin1Char(clsDB::AdminCode));
    m_ui->UserType_0->setChecked(isAdmin);
    m_ui->UserType_1->setChecked(!isAdmin);
}

void frmUser::SetPermListBox(const QString &perm)
{
    for (int at = 0; at < m_ui->lstPermissions->count(); ++at)
        m_ui->lstPermissions->item(at)->setCheckState(perm.mid(at, 1) == u"1" ? Qt::Checked
                                                                              : Qt::Unchecked);
}

QString frmUser::GetPermListBox() const
{
    QString perm = clsDB::GetDefaultPermissionsStr();
    for (int at = 0; at < m_ui->lstPermissions->count(); ++at)
        perm[at] = m_ui->lstPermissions->item(at)->checkState() == Qt::Checked ? u'1' : u'0';
    return perm;
}

QString frmUser::description() const
{
    return m_ui->txtLogin->text();
}

QString frmUser::firstProblem()
{
    const QString login = m_ui->txtLogin->text();
    if (login.size() < kShortestLogin || login.size() > kLongestLogin ||
        !clsSystem::StrAlphaDigitOnly(login))
        return tr("Login Name must be between 3 and 20 characters long.\n"
                  "Login Name may NOT contain spaces.\n"
                  "Login Name may only contain characters (A-Z) or digits (0-9).");
    if (!m_ui->UserType_0->isChecked() && !m_ui->UserType_1->isChecked())
        return tr("Please choose either 'Administrator Role' or 'User Role' in the 'Roles & "
                  "Permissions' section.");
    if (!gDB.IsUniqueVal(rowid(), login, QStringLiteral("login"), gDB.UserTable()))
        return tr("Login name must be unique within the database!");
    return {};
}

bool frmUser::SaveData()
{
    const bool saved = RecordForm::SaveData();
    m_saved = m_saved || saved;
    return saved;
}

void frmUser::afterSetUI()
{
    enablePermissions();
}

// An administrator has all rights, whatever is ticked.
void frmUser::enablePermissions()
{
    m_ui->lstPermissions->setEnabled(inEditMode() && m_ui->UserType_1->isChecked());
}
