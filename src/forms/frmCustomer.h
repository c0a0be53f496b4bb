// One customer: contact details, notes, further contacts, and the lists of what he holds and has
// raised.
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

    // Fill a list anew and select the row with that rowid, when it is above 0 (NotifyCustomer).
    Q_INVOKABLE void LV_LoadPS(int selectId);
    Q_INVOKABLE void LV_LoadIssues(int selectId);

    QSize sizeHint() const override;

protected:
    QString description() const override { return MakeCustomerName(); }
    QString emailAddress() const override;
    QString firstProblem() override;
    bool extraCheck() override;
    void afterLoad() override;
    void afterSetUI() override;
    QString deleteRefusal() override;

private:
    void bindFields();
    void bindListEditors();
    void tellLengths();
    bool CheckForDuplicateCustomerNumber(); // false: do not save
    void SetCustomerNumber();
    void showMailingLabel();
    void pageChanged(int page);
    void showEditState(); // the banner and what belongs to it, on the pages of the record itself
    void printPage();

    // ---- the lists (frmCustomerLists.cpp)
    void LV_AddColHeaders();
    void connectLists();
    void newSubscription();
    void openSubscription();
    void newIssue();
    void openIssue();
    void printSubscriptions();
    void printIssues();

    // ---- texts (frmCustomerText.cpp)
    QString contactLines() const;
    QString fullName() const;  // salutation, first and last name
    QString placeLine() const; // city, state and postal code

    std::unique_ptr<Ui::frmCustomer> m_ui;
};
