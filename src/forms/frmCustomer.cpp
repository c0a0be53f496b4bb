#include "forms/frmCustomer.h"

#include "common/base/Ansi.h"
#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/form/FieldBinding.h"
#include "common/ui/Controls.h"
#include "common/ui/frmRichEdit.h"
#include "common/ui/Icons.h"
#include "common/ui/Switchboard.h"
#include "db/clsCustomLabels.h"
#include "db/clsLookupCustomer.h"
#include "db/LookupTypes.h"
#include "forms/ContactsGrid.h"
#include "ui_frmCustomer.h"

namespace
{

constexpr int kContactPage = 0;
constexpr int kNotesPage = 1;
constexpr int kPSPage = 2;
constexpr int kIssuesPage = 3;
constexpr int kColumnCharacters = 96; // a label and a field of 80
constexpr int kWindowCharacters = 148;

RecordSpec customerSpec()
{
    return {.tagPrefix = QStringLiteral("C"),
            .table = schema::Table::Customer,
            .recordType = QStringLiteral("_customer"),
            .captionPrefix = frmCustomer::tr("Customer: "),
            .newCaption = frmCustomer::tr("Customer Name"),
            .helpTopic = help::Customer,
            .permission = &clsDB::Perm_Customers};
}

bool isUsableAddress(const QLineEdit *box)
{
    const QString address = clsSystem::Trim(box->text());
    return address.isEmpty() || clsSystem::EmailAddressIsValid(address);
}

} // namespace

frmCustomer::frmCustomer(QWidget *parent)
    : RecordForm(customerSpec(), parent), m_ui(std::make_unique<Ui::frmCustomer>())
{
    m_ui->setupUi(this);
    contacts::setUp(m_ui->grdContacts);
    LV_AddColHeaders();
    takeControls(m_ui.get());
    setNewRecordHint(m_ui->lblNewCust);
    bindFields();
    bindListEditors();
    connectLists();
    tellLengths();

    connect(m_ui->cmdDTStamp_Notes, &QPushButton::clicked, this,
            [this] { insertStamp(m_ui->txtNote); });
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &frmCustomer::printPage);
    connect(m_ui->cmdEmail, &QPushButton::clicked, this, &frmCustomer::FormEmail);
    for (const auto &[button, box] : {std::pair(m_ui->cmdSendEmail, m_ui->txtEmailName),
                                      std::pair(m_ui->cmdSendEmail2, m_ui->txtEmailName2)}) {
        button->setIcon(icon(QStringLiteral("email")));
        connect(button, &QToolButton::clicked, this,
                [box = box] { clsSystem::SendEmail(box->text()); });
    }
    connect(m_ui->cmdLabel, &QPushButton::clicked, this, &frmCustomer::showMailingLabel);
    connect(m_ui->tabs, &QTabWidget::currentChanged, this, &frmCustomer::pageChanged);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_ui->EM), static_cast<QWidget *>(m_ui->lblEdit)}) {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true); // the pages stay where they are
        widget->setSizePolicy(policy);
    }
}

frmCustomer::~frmCustomer() = default;

// In the order in which the fields are saved.
void frmCustomer::bindFields()
{
    bindTrimmed(QStringLiteral("custno"), m_ui->txtCustNo);
    bindText(QStringLiteral("salutation"), m_ui->cboSalutation);
    bind(QStringLiteral("firstname"), m_ui->txtFname);
    bind(QStringLiteral("lastname"), m_ui->txtLname);
    bind(QStringLiteral("company"), m_ui->txtCoName);
    bindLookup(QStringLiteral("custcat"), m_ui->cboCategory, lookup_type::CustomerCategories);
    bind(QStringLiteral("title"), m_ui->txtTitle);
    bind(QStringLiteral("address1"), m_ui->txtAddress1);
    bind(QStringLiteral("address2"), m_ui->txtAddress2);
    bind(QStringLiteral("city"), m_ui->txtCity);
    bindLookup(QStringLiteral("state"), m_ui->cboStates, lookup_type::States);
    bind(QStringLiteral("postalcode"), m_ui->txtPostalCode);
    bindLookup(QStringLiteral("country"), m_ui->cboCountry, lookup_type::Countries);
    bind(QStringLiteral("workphone"), m_ui->txtWorkPhone);
    bind(QStringLiteral("homephone"), m_ui->txtHomePhone);
    bind(QStringLiteral("mobilphone"), m_ui->txtMobilePhone);
    bind(QStringLiteral("faxphone"), m_ui->txtFaxphone);
    bind(QStringLiteral("emailname"), m_ui->txtEmailName);
    bind(QStringLiteral("emailname2"), m_ui->txtEmailName2);
    bindText(QStringLiteral("custom1"), m_ui->txtCust1, lookup_type::CustomerCustom1);
    bindText(QStringLiteral("custom2"), m_ui->txtCust2, lookup_type::CustomerCustom2);
    bind(QStringLiteral("notes"), m_ui->txtNote);
    bindCustom(
        QStringLiteral("contacts"), m_ui->grdContacts,
        [this](const QVariant &value) { contacts::show(m_ui->grdContacts, value.toString()); },
        [this] { return QVariant(contacts::text(m_ui->grdContacts)); });
}

void frmCustomer::bindListEditors()
{
    bindListEditor(m_ui->cboCatCategory, m_ui->cboCategory, lookup_type::CustomerCategories);
    bindListEditor(m_ui->cmdCatStates, m_ui->cboStates, lookup_type::States);
    bindListEditor(m_ui->cboCatCountry, m_ui->cboCountry, lookup_type::Countries);
    bindListEditor(m_ui->cmdCust1Cat, m_ui->txtCust1, lookup_type::CustomerCustom1);
    bindListEditor(m_ui->cmdCust2Cat, m_ui->txtCust2, lookup_type::CustomerCustom2);
}

// Boxes for short entries are no wider than what goes into them, and no column is wider than its
// longest entries, however wide the window.
void frmCustomer::tellLengths()
{
    const int character = fontMetrics().averageCharWidth();
    for (QLineEdit *box : {m_ui->txtCustNo, m_ui->txtPostalCode, m_ui->txtWorkPhone,
                           m_ui->txtHomePhone, m_ui->txtMobilePhone, m_ui->txtFaxphone})
        box->setMaximumWidth((box->maxLength() + 2) * character);
    for (QWidget *column : {m_ui->columnLeft, m_ui->columnRight})
        column->setMaximumWidth(kColumnCharacters * character);
}

// Wide enough for the contacts grid.
QSize frmCustomer::sizeHint() const
{
    return RecordForm::sizeHint().expandedTo(
        {kWindowCharacters * fontMetrics().averageCharWidth(), 0});
}

QString frmCustomer::emailAddress() const
{
    return m_ui->txtEmailName->text();
}

QString frmCustomer::MakeCustomerName() const
{
    const QString company = clsSystem::Trim(m_ui->txtCoName->text());
    if (!company.isEmpty())
        return company;
    const QString last = clsSystem::Trim(m_ui->txtLname->text());
    if (!last.isEmpty())
        return clsSystem::MakeFullName(clsSystem::Trim(m_ui->txtFname->text()), last);
    return tr("New ");
}

QString frmCustomer::firstProblem()
{
    if (clsSystem::Trim(m_ui->txtLname->text()).isEmpty() &&
        clsSystem::Trim(m_ui->txtCoName->text()).isEmpty())
        return tr("Customer's last name or company name must be specified!");
    if (!isUsableAddress(m_ui->txtEmailName))
        return tr("Default email address entered is not a valid email address!");
    if (!isUsableAddress(m_ui->txtEmailName2))
        return tr("Alternate email address entered is not a valid email address!");
    // A longer memo could be written but not read back.
    if (toAnsi(contacts::text(m_ui->grdContacts)).size() > binding::kMemoLimit)
        return tr("The additional contacts hold more text than can be stored. Please shorten "
                  "them.");
    return {};
}

bool frmCustomer::extraCheck()
{
    return CheckForDuplicateCustomerNumber();
}

// Numbers need not be unique: the user decides.
bool frmCustomer::CheckForDuplicateCustomerNumber()
{
    const QString number = clsSystem::Trim(m_ui->txtCustNo->text());
    if (number.isEmpty())
        return true;
    const qint32 count = clsLookupCustomer::CustomersWithCustomerNumber(number, rowid());
    if (count <= 0)
        return true;
    const QString name = CustomLabels.GetCustomerLabelName(QStringLiteral("custno"), false);
    const QString question =
        tr("There are %1 other customer(s) with the same %2 '%3' in your database. Choose View | "
           "Lookup Customer to find the customers with the same %2. \n\n"
           "Do you want to add this customer with the duplicate %2 anyways?")
            .arg(QString::number(count), name, number);
    return prompts::ask(question, prompts::Answer::Cancel) == prompts::Answer::Yes;
}

void frmCustomer::afterLoad()
{
    LV_LoadPS(-1);
    LV_LoadIssues(-1);
}

// The lists open windows of their own, so they are for a stored customer that is not being edited.
void frmCustomer::afterSetUI()
{
    contacts::setLocked(m_ui->grdContacts, !inEditMode());
    SetCustomerNumber();
    const int page = m_ui->tabs->currentIndex();
    if (inEditMode() && (page == kPSPage || page == kIssuesPage))
        m_ui->tabs->setCurrentIndex(kContactPage);
    for (const int list : {kPSPage, kIssuesPage})
        m_ui->tabs->setTabEnabled(list, !inEditMode());
    showEditState();
}

void frmCustomer::pageChanged(int page)
{
    showEditState();
    if (page == kNotesPage && m_ui->txtNote->isEnabled())
        m_ui->txtNote->setFocus();
}

void frmCustomer::showEditState()
{
    const int page = m_ui->tabs->currentIndex();
    const bool onList = page == kPSPage || page == kIssuesPage;
    m_ui->EM->setVisible(!onList);
    m_ui->lblEdit->setVisible(!onList && rowid() >= 1);
    m_ui->cmdEmail->setEnabled(!onList);
}

void frmCustomer::printPage()
{
    switch (m_ui->tabs->currentIndex()) {
    case kPSPage:
        printSubscriptions();
        break;
    case kIssuesPage:
        printIssues();
        break;
    default:
        FormPrint();
    }
}

void frmCustomer::SetCustomerNumber()
{
    m_ui->lblCustomerID->setText(rowid() < 1 ? QString() : tr("ID: %1").arg(rowid()));
}

QString frmCustomer::deleteRefusal()
{
    const QString custid = QStringLiteral("custid");
    QString reasons;
    if (!gDB.CanDeleteItem(rowid(), gDB.Customers2PSTable(), custid))
        reasons += tr("  - '%1' has Product/Services associated (Cancel Edit & see "
                      "Product/Services tab).\n")
                       .arg(windowTitle());
    if (!gDB.CanDeleteItem(rowid(), gDB.IssuesTable(), custid))
        reasons += tr("  - '%1' has Issues associated (Cancel Edit & see Issues tab).\n")
                       .arg(windowTitle());
    return reasons.isEmpty() ? QString() : tr("Unable to delete customer because:\n") + reasons;
}

void frmCustomer::showMailingLabel()
{
    auto *preview = new frmRichEdit;
    preview->Init(tr("Mailing label text for %1").arg(MakeCustomerName()), MailingLabelText());
    switchboard().showChild(preview);
}
