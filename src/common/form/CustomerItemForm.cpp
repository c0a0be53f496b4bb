#include "common/form/CustomerItemForm.h"

#include "common/base/clsSystem.h"
#include "common/ui/Icons.h"
#include "common/ui/Switchboard.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLineEdit>

CustomerItemForm::CustomerItemForm(const RecordSpec &spec, CustomerList list, const QString &kind,
                                   QWidget *parent)
    : RecordForm(spec, parent), m_list(list), m_kind(kind)
{
}

void CustomerItemForm::connectItemControls()
{
    m_item.cmdCustomer->setIcon(icon(QStringLiteral("customer")));
    connect(m_item.cmdCustomer, &QAbstractButton::clicked, this, &CustomerItemForm::openCustomer);
}

void CustomerItemForm::bindCustomer()
{
    bindCustom(
        QStringLiteral("custid"), m_item.lblCustomer,
        [this](const QVariant &value) { showCustomer(value.toInt()); },
        [this] { return QVariant(m_custid); });
}

void CustomerItemForm::bindCalendar(QAbstractButton *button, QLineEdit *box)
{
    button->setIcon(icon(QStringLiteral("calendar")));
    connect(button, &QAbstractButton::clicked, this, [box] {
        const QString date = switchboard().GetShortDateFromPopupCalendar(box->text());
        if (!date.isEmpty())
            box->setText(date);
        if (box->isEnabled())
            box->setFocus();
    });
}

void CustomerItemForm::showCustomer(qint32 custid)
{
    m_custid = custid;
    m_item.lblCustomer->setText(gDB.GetCustomername(custid));
}

void CustomerItemForm::openCustomer() const
{
    switchboard().ShowCustomer(m_custid, false);
}

bool CustomerItemForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick && watched == m_item.lblCustomer) {
        openCustomer();
        return true;
    }
    return RecordForm::eventFilter(watched, event);
}

void CustomerItemForm::NoCustomerMsg() const
{
    clsSystem::ShowMsg(tr("The Customer record to which this Product/Service record belongs no "
                          "longer exists or is inaccessible."),
                       prompts::Kind::Critical);
}

bool CustomerItemForm::ownerExists()
{
    if (gDB.CheckIfRecExists(gDB.CustomerTable(), schema::table(schema::Table::Customer).dataFile(),
                             m_custid, true))
        return true;
    NoCustomerMsg();
    return false;
}

// A record that was asked for by its own number says itself whose it is.
bool CustomerItemForm::loadOwner()
{
    if (m_custid < 1)
        return true;
    if (!ownerExists())
        return false;
    showCustomer(m_custid);
    return true;
}

void CustomerItemForm::InitATC()
{
    if (rowid() > 0)
        m_item.ACtl->Init(gDB.Attachments(rowid(), m_kind));
}

void CustomerItemForm::afterLoad()
{
    InitATC();
}

void CustomerItemForm::afterApply()
{
    InitATC();
}

void CustomerItemForm::afterStore()
{
    switchboard().NotifyCustomer(m_custid, m_list, rowid());
}

// Attachments lie under the number of a stored record.
void CustomerItemForm::afterSetUI()
{
    for (int page = 0; page < m_item.tabs->count(); ++page)
        if (m_item.tabs->widget(page)->isAncestorOf(m_item.ACtl))
            m_item.tabs->setTabEnabled(page, rowid() >= 0);
}

bool CustomerItemForm::removeRecord()
{
    if (!RecordForm::removeRecord())
        return false;
    if (!gDB.DeleteAttachments(rowid(), m_kind))
        prompts::warn(tr("The record was deleted, but not all of its attachments. What is left of "
                         "them is in the folder '%1'.")
                          .arg(gDB.GetAttachmentSubDir(rowid(), m_kind)));
    afterStore();
    return true;
}

QString CustomerItemForm::emailAddress() const
{
    return gDB.GetCustomerEmail(m_custid);
}

QString CustomerItemForm::deleteQuestion() const
{
    return tr("Are you sure you want to *DELETE*  '%1' and all of its attachments (if any)?")
        .arg(windowTitle());
}

QString CustomerItemForm::describe(const QString &product, const QString &shortDescription)
{
    constexpr int shown = 15;
    const bool chosen = !clsSystem::Trim(product).isEmpty();
    if (clsSystem::Trim(shortDescription).isEmpty())
        return chosen ? product : tr("New");
    const QString start = shortDescription.left(shown) + u"...";
    return chosen ? QString(product + u" - " + start) : start;
}

QString CustomerItemForm::faultsMessage(const QStringList &faults)
{
    if (faults.isEmpty())
        return {};
    return tr("Please correct the following data entry fields:") + u"\n\n" +
           faults.join(QLatin1String("\n\n")) + u"\n\n";
}

bool CustomerItemForm::isNoDate(const QLineEdit *box)
{
    return !clsSystem::Trim(box->text()).isEmpty() && !clsSystem::IsDate(box->text());
}
