// One customer: contact details, notes and further contacts.
#pragma once

#include "common/form/RecordForm.h"

#include <memory>

namespace Ui
{
class frmCustomer;
}

class frmCustomer : public RecordForm
{
    Q_OBJECT
public:
    explicit frmCustomer(QWidget *parent = nullptr);
    ~frmCustomer() override;

    // The record as plain text, a labelled line for each field.
    QString FormContent() override;
    // The lines of a mailing label, in capitals.
    QString MailingLabelText() const;
    // Company, else "Last, First", else "New ".
    QString MakeCustomerName() const;

    QSize sizeHint() const override;

protected:
    QString description() const override { return MakeCustomerName(); }
    QString emailAddress() const override;
    QString firstProblem() override;
    bool extraCheck() override;
    void afterSetUI() override;
    QString deleteRefusal() override;

private:
    void bindFields();
    void tellLengths();
    bool CheckForDuplicateCustomerNumber(); // false: do not save
    void SetCustomerNumber();
    void showMailingLabel();
    QString contactLines() const;
    QString fullName() const;  // salutation, first and last name
    QString placeLine() const; // city, state and postal code

    std::unique_ptr<Ui::frmCustomer> m_ui;
};
