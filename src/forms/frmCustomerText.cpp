// The customer as text: the preview's content and the mailing label.
#include "common/base/clsSystem.h"
#include "common/form/LabelledLine.h"
#include "forms/ContactsGrid.h"
#include "forms/frmCustomer.h"
#include "ui_frmCustomer.h"

namespace
{

const LabelledLine line(20);

QString AddSpace(const QString &text)
{
    return clsSystem::Trim(text).isEmpty() ? text : text + u' ';
}

QString lineUnlessEmpty(const QString &label, const QString &value)
{
    return value.isEmpty() ? QString() : line(label, value);
}

} // namespace

QString frmCustomer::fullName() const
{
    return AddSpace(m_ui->cboSalutation->currentText()) + AddSpace(m_ui->txtFname->text()) +
           m_ui->txtLname->text();
}

QString frmCustomer::placeLine() const
{
    return m_ui->txtCity->text() + u", " + m_ui->cboStates->currentText() + u' ' +
           m_ui->txtPostalCode->text();
}

QString frmCustomer::MailingLabelText() const
{
    const auto lineOf = [](const QString &text) {
        return text.isEmpty() ? QString() : QString(text + u'\n');
    };
    QString text = fullName();
    if (!m_ui->txtTitle->text().isEmpty())
        text += u", " + m_ui->txtTitle->text();
    text += u'\n';
    text += lineOf(m_ui->txtCoName->text());
    text += lineOf(m_ui->txtAddress1->text());
    text += lineOf(m_ui->txtAddress2->text());
    if (!m_ui->txtCity->text().isEmpty() || !m_ui->cboStates->currentText().isEmpty() ||
        !m_ui->txtPostalCode->text().isEmpty())
        text += lineOf(placeLine());
    text += m_ui->cboCountry->currentText();
    return text.toUpper();
}

QString frmCustomer::FormContent()
{
    QString text = tr("CUSTOMER INFORMATION (%1)\n\n").arg(m_ui->lblCustomerID->text());
    text += line(m_ui->lblCustNo, m_ui->txtCustNo->text());
    text += line(tr("Name:"), fullName());
    text += line(m_ui->lblCo, m_ui->txtCoName->text());
    text += line(m_ui->lblTitle, m_ui->txtTitle->text());
    text += line(m_ui->lblAddr1, m_ui->txtAddress1->text());
    text += line(QString(), m_ui->txtAddress2->text());
    text += line(QString(), placeLine());
    text += line(QString(), m_ui->cboCountry->currentText(), 2);
    text += line(m_ui->lblCustom1, m_ui->txtCust1->currentText());
    text += line(m_ui->lblCustom2, m_ui->txtCust2->currentText(), 2);
    text += line(m_ui->lblWPh, m_ui->txtWorkPhone->text());
    text += line(m_ui->lblHPh, m_ui->txtHomePhone->text());
    text += line(m_ui->lblMPh, m_ui->txtMobilePhone->text());
    text += line(m_ui->lblFaxP, m_ui->txtFaxphone->text());
    text += line(m_ui->lblDefEmail, m_ui->txtEmailName->text());
    text += line(m_ui->lblAltEmail, m_ui->txtEmailName2->text(), 2);
    text += line(m_ui->lblCat, m_ui->cboCategory->currentText(), 2);
    text += tr("Notes:") + u'\n' + m_ui->txtNote->toPlainText() + u"\n\n";
    text += tr("Additional Contacts:") + u'\n' + contactLines() + u"\n\n";
    return text + line.lastModified(m_ui->LE);
}

// A contact without a name is left out.
QString frmCustomer::contactLines() const
{
    QString text;
    for (const contacts::Contact &contact : contacts::all(m_ui->grdContacts)) {
        if (contact.name.isEmpty())
            continue;
        text += line(tr("Name:"), contact.name);
        text += lineUnlessEmpty(tr("Title:"), contact.title);
        text += lineUnlessEmpty(tr("Address:"), contact.address);
        text += lineUnlessEmpty(tr("Telephone:"), contact.telephone);
        text += lineUnlessEmpty(tr("Email:"), contact.email);
        text += u'\n';
    }
    return text;
}
