#include "forms/frmPS.h"

#include "common/base/clsSystem.h"
#include "common/base/HelpTopics.h"
#include "common/form/LabelledLine.h"
#include "db/LookupTypes.h"
#include "forms/Subscription.h"
#include "ui_frmPS.h"

namespace
{

constexpr int kNotesPage = 1;
constexpr int kColumnCharacters = 84; // a label and a field of 60
constexpr int kDateCharacters = 14;
constexpr int kWindowCharacters = 128;

RecordSpec subscriptionSpec()
{
    return {.tagPrefix = QStringLiteral("P"),
            .table = schema::Table::Customer2PS,
            .recordType = QStringLiteral("_ps"),
            .captionPrefix = frmPS::tr("Product/Service: "),
            .newCaption = {},
            .helpTopic = help::Subscription,
            .permission = &clsDB::Perm_PS};
}

} // namespace

frmPS::frmPS(QWidget *parent)
    : CustomerItemForm(subscriptionSpec(), Subscriptions, QStringLiteral("_ps"), parent),
      m_ui(std::make_unique<Ui::frmPS>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Product/Service"));
    takeItemControls(m_ui.get());
    setNewRecordHint(m_ui->lblNewPS);
    bindFields();
    bindListEditors();
    tellLengths();

    connect(m_ui->cmdDTStamp_Notes, &QPushButton::clicked, this,
            [this] { insertStamp(m_ui->txtNote); });
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &frmPS::FormPrint);
    connect(m_ui->cmdEmail, &QPushButton::clicked, this, &frmPS::FormEmail);
    connect(m_ui->tabs, &QTabWidget::currentChanged, this, [this](int page) {
        if (page == kNotesPage && m_ui->txtNote->isEnabled())
            m_ui->txtNote->setFocus();
    });
}

frmPS::~frmPS() = default;

// In the order in which the fields are saved.
void frmPS::bindFields()
{
    bindCustomer();
    bindLookup(QStringLiteral("psid"), m_ui->cboPS, lookup_type::Products);
    bindLookup(QStringLiteral("conttype"), m_ui->cboContractType, lookup_type::ContractTypes);
    bindLookup(QStringLiteral("contdur"), m_ui->cboContractDuration,
               lookup_type::ContractDurations);
    bind(QStringLiteral("shortdesc"), m_ui->txtShortDesc);
    bind(QStringLiteral("contno"), m_ui->txtContractNumber);
    bind(QStringLiteral("trackno"), m_ui->txtTrackNo);
    bindDate(QStringLiteral("dateinit"), m_ui->txtDateInitiated);
    bindDate(QStringLiteral("dateterm"), m_ui->txtDateTerminated);
    bind(QStringLiteral("notes"), m_ui->txtNote);
    bindText(QStringLiteral("custom1"), m_ui->txtCust1, lookup_type::SubscriptionCustom1);
    bindText(QStringLiteral("custom2"), m_ui->txtCust2, lookup_type::SubscriptionCustom2);
}

void frmPS::bindListEditors()
{
    bindListEditor(m_ui->cmdCatPS, m_ui->cboPS, lookup_type::Products);
    bindListEditor(m_ui->cmdCatContractType, m_ui->cboContractType, lookup_type::ContractTypes);
    bindListEditor(m_ui->cmdCatContractDuration, m_ui->cboContractDuration,
                   lookup_type::ContractDurations);
    bindListEditor(m_ui->cmdCust1Cat, m_ui->txtCust1, lookup_type::SubscriptionCustom1);
    bindListEditor(m_ui->cmdCust2Cat, m_ui->txtCust2, lookup_type::SubscriptionCustom2);
    bindCalendar(m_ui->cmdCalendar_0, m_ui->txtDateInitiated);
    bindCalendar(m_ui->cmdCalendar_1, m_ui->txtDateTerminated);
}

// Boxes for short entries are no wider than what goes into them, and no column is wider than its
// longest entries, however wide the window.
void frmPS::tellLengths()
{
    const int character = fontMetrics().averageCharWidth();
    for (QLineEdit *box : {m_ui->txtContractNumber, m_ui->txtTrackNo})
        box->setMaximumWidth((box->maxLength() + 2) * character);
    for (QLineEdit *box : {m_ui->txtDateInitiated, m_ui->txtDateTerminated})
        box->setFixedWidth(kDateCharacters * character);
    for (QWidget *column : {m_ui->columnLeft, m_ui->columnRight})
        column->setMaximumWidth(kColumnCharacters * character);
}

// Wide enough for a whole description and the names of attachments.
QSize frmPS::sizeHint() const
{
    return CustomerItemForm::sizeHint().expandedTo(
        {kWindowCharacters * fontMetrics().averageCharWidth(), 24 * fontMetrics().height()});
}

QString frmPS::description() const
{
    return describe(m_ui->cboPS->currentText(), m_ui->txtShortDesc->text());
}

QString frmPS::firstProblem()
{
    QStringList faults;
    if (cboGetItemID(m_ui->cboPS) < 0)
        faults += tr("  - PRODUCT/SERVICE must be selected.");
    if (isNoDate(m_ui->txtDateInitiated))
        faults += tr("  - DATE INITIATED is not a valid date.");
    if (isNoDate(m_ui->txtDateTerminated))
        faults += tr("  - DATE TERMINATED is not a valid date.");
    const QString from = m_ui->txtDateInitiated->text();
    const QString to = m_ui->txtDateTerminated->text();
    if (clsSystem::IsDate(from) && clsSystem::IsDate(to) &&
        clsSystem::Str2Date(to) < clsSystem::Str2Date(from))
        faults += tr("  - DATE TERMINATED cannot be before DATE INITIATED.");
    return faultsMessage(faults);
}

void frmPS::startNew()
{
    m_ui->txtDateInitiated->setText(clsSystem::CurrDateShort());
}

void frmPS::afterLoad()
{
    SetActiveStatus();
    CustomerItemForm::afterLoad();
}

void frmPS::afterSetUI()
{
    CustomerItemForm::afterSetUI();
    m_ui->lblActive->setVisible(!inEditMode());
    m_ui->lblPSID->setText(rowid() < 1 ? QString() : tr("ID: %1").arg(rowid()));
    SetActiveStatus();
}

void frmPS::SetActiveStatus()
{
    m_ui->lblActive->setText(isActiveUntil(m_ui->txtDateTerminated->text()) ? tr("Active: YES")
                                                                            : tr("Active: NO"));
}

QString frmPS::FormContent()
{
    const LabelledLine line(28);
    QString text = tr("PRODUCT/SERVICE DETAILS\n\n");
    text += line(tr("Customer Name:"), customerName());
    text += line(tr("Product/Service:"), m_ui->cboPS->currentText());
    text += line(m_ui->lblShortDesc, m_ui->txtShortDesc->text());
    text += line(m_ui->lblContPN, m_ui->txtContractNumber->text());
    text += line(m_ui->lblTrackingNo, m_ui->txtTrackNo->text());
    text += line(m_ui->lblContractType, m_ui->cboContractType->currentText());
    text += line(m_ui->lblContractDur, m_ui->cboContractDuration->currentText());
    text += line(m_ui->lblDateInit, m_ui->txtDateInitiated->text());
    text += line(m_ui->lblDateTerm,
                 m_ui->txtDateTerminated->text() + u" (" + m_ui->lblActive->text() + u") ", 2);
    text += line(m_ui->lblCustom1, m_ui->txtCust1->currentText());
    text += line(m_ui->lblCustom2, m_ui->txtCust2->currentText()) + u'\n';
    text += tr("Notes:") + u'\n' + m_ui->txtNote->toPlainText() + u'\n';
    return text + line.lastModified(m_ui->LE);
}
